#include "ui/menubar/StatusPopover.h"

#include "ui/common/AccessibleRole.h"
#include "ui/common/Theme.h"
#include "ui/menubar/PopoverPlace.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize contentSize{300, 400};
constexpr int frameWidth = 1;
/// From a press that closes the popover to the word that it was the icon's, by way of the desktop's bar.
constexpr std::chrono::milliseconds pressTravels{400};

/// A window system that lets no window choose its place or take the pointer for itself.
bool isWayland()
{
    return QGuiApplication::platformName().startsWith("wayland"_L1);
}

/// Where the desktop keeps the icon to itself: where the user has just pressed it, or where icons mostly are.
QRect likelyIcon()
{
    if (!isWayland()) {
        return {QCursor::pos(), QSize(1, 1)};
    }
    return {QGuiApplication::primaryScreen()->availableGeometry().topRight(), QSize(1, 1)};
}

} // namespace

class StatusPopover::Window : public QWidget
{
public:
    explicit Window(QWidget* content)
    {
        setWindowFlags((isWayland() ? Qt::Dialog : Qt::Popup) | Qt::FramelessWindowHint);
        setObjectName(u"statusPopover"_s);
        setAccessibleRole(*this, QAccessible::Dialog);
        setWindowTitle(u"Aerolith"_s);
        setAttribute(Qt::WA_QuitOnClose, false);
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(frameWidth, frameWidth, frameWidth, frameWidth);
        content->setFixedSize(Theme::scaledToText(contentSize));
        layout->addWidget(content);
        layout->setSizeConstraint(QLayout::SetFixedSize);
    }

    void open(const QRect& icon)
    {
        const QRect anchor = icon.isEmpty() ? likelyIcon() : icon;
        const QScreen* screen = QGuiApplication::screenAt(anchor.center());
        if (screen == nullptr) {
            screen = QGuiApplication::primaryScreen();
        }
        adjustSize();
        move(popoverPlace(size(), anchor, screen->availableGeometry()));
        show();
        raise();
        activateWindow();
    }

    [[nodiscard]] bool isJustDismissed() const
    {
        return m_dismissed.isValid() && !m_dismissed.hasExpired(pressTravels.count());
    }

    /// The next press is a new one.
    void closeForGood()
    {
        hide();
        m_dismissed.invalidate();
    }

    void forgetDismissal() { m_dismissed.invalidate(); }

protected:
    bool event(QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::WindowBlocked:
            // A dialog could not be reached past a window that takes every press.
            hide();
            break;
        case QEvent::ActivationChange:
            if (isVisible() && !isActiveWindow()) {
                // Where it is no popup, this is all that it learns of a press outside.
                m_dismissed.start();
                hide();
            }
            break;
        default:
            break;
        }
        return QWidget::event(event);
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        if (!rect().contains(event->position().toPoint())) {
            m_dismissed.start();
        }
        QWidget::mousePressEvent(event);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Escape) {
            closeForGood();
        } else {
            QWidget::keyPressEvent(event);
        }
    }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Window));
        painter.setPen(Theme::blended(Theme::gray(), palette().color(QPalette::Window), frameOpacity));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

private:
    static constexpr double frameOpacity = 0.6;

    /// Runs since a press outside, or the focus that it took away, has closed the popover.
    QElapsedTimer m_dismissed;
};

StatusPopover::StatusPopover(std::function<QWidget*()> makeContent) : m_makeContent(std::move(makeContent)) {}

bool StatusPopover::isShown() const
{
    return m_window && (m_window->isVisible() || m_window->isJustDismissed());
}

void StatusPopover::show(const QRect& icon)
{
    if (!m_window) {
        m_window = std::make_shared<Window>(m_makeContent());
    }
    m_window->forgetDismissal();
    m_window->open(icon);
}

void StatusPopover::close()
{
    m_window->closeForGood();
}

} // namespace aerolith
