#include "ui/common/VisibleClock.h"

#include <QEvent>
#include <QStyle>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace aerolith {

VisibleClock::VisibleClock(QWidget& widget, std::function<void()> frame, std::chrono::milliseconds interval)
    : m_widget(widget), m_isShown(widget.isVisible())
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(interval);
    m_timer.callOnTimeout(this, std::move(frame));
    widget.installEventFilter(this);
    if (m_isShown) {
        widgetShown(true);
    }
}

Seconds VisibleClock::time() const
{
    return m_elapsed + (isRunning() ? Seconds(std::chrono::milliseconds(m_running.elapsed())) : Seconds(0));
}

bool VisibleClock::eventFilter(QObject* /*watched*/, QEvent* event)
{
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
        m_timer.stop();
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
    const bool runs = canBeSeen() && m_widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration,
                                                                 nullptr, &m_widget) > 0;
    if (runs == isRunning()) {
        return;
    }
    if (runs) {
        m_running.start();
        m_timer.start();
    } else {
        m_elapsed = time();
        m_timer.stop();
    }
}

bool VisibleClock::canBeSeen() const
{
    return m_isShown && m_window != nullptr && m_window->isExposed();
}

} // namespace aerolith
