#include "ui/common/VisibleClock.h"

#include "ui/common/Animations.h"

#include <QEvent>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace aerolith {

using namespace std::chrono_literals;

VisibleClock::VisibleClock(QWidget& widget, std::function<void()> frame, std::chrono::milliseconds interval)
    : m_widget(widget), m_isShown(widget.isVisible()), m_frame(std::move(frame)), m_interval(interval)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setSingleShot(true);
    m_timer.callOnTimeout(this, [this] { showFrame(); });
    widget.installEventFilter(this);
    if (m_isShown) {
        widgetShown(true);
    }
}

Seconds VisibleClock::time() const
{
    return m_elapsed + (isRunning() ? Seconds(std::chrono::milliseconds(m_running.elapsed())) : Seconds(0));
}

bool VisibleClock::eventFilter(QObject* watched, QEvent* event)
{
    // The window is shown also where the widget in it is hidden.
    if (watched != &m_widget && event->type() != QEvent::Expose) {
        return false;
    }
    switch (event->type()) {
    case QEvent::Show:
        // A window that comes back from being minimised shows its widgets spontaneously.
        widgetShown(!event->spontaneous());
        break;
    case QEvent::Hide:
        m_isShown = false;
        update();
        break;
    case QEvent::Expose:
    case QEvent::StyleChange:
        update();
        break;
    default:
        break;
    }
    return false;
}

void VisibleClock::widgetShown(bool anew)
{
    m_isShown = true;
    if (anew) {
        stop();
        m_elapsed = Seconds(0);
    }
    QWindow* window = m_widget.window()->windowHandle();
    if (window != m_window) {
        if (m_window != nullptr) {
            m_window->removeEventFilter(this);
        }
        m_window = window;
        if (window != nullptr) {
            window->installEventFilter(this);
        }
    }
    update();
}

void VisibleClock::update()
{
    const bool runs = canBeSeen() && hasAnimations(m_widget);
    if (runs == isRunning()) {
        return;
    }
    if (runs) {
        m_running.start();
        m_timer.start(m_interval);
    } else {
        m_elapsed = time();
        stop();
    }
}

void VisibleClock::stop()
{
    m_running.invalidate();
    m_frameBegan.invalidate();
    m_timer.stop();
}

void VisibleClock::showFrame()
{
    if (!m_frameBegan.isValid()) {
        m_frameBegan.start();
        m_frame();
        // Once nothing is left to do, what the frame has changed is on the screen.
        m_timer.start(0ms);
        return;
    }
    const std::chrono::milliseconds taken(m_frameBegan.elapsed());
    m_frameBegan.invalidate();
    m_timer.start(std::max(m_interval - taken, 2 * taken));
}

bool VisibleClock::canBeSeen() const
{
    return m_isShown && m_window != nullptr && m_window->isExposed();
}

} // namespace aerolith
