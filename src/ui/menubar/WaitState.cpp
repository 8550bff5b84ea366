#include "ui/menubar/WaitState.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QWidget>

namespace aerolith {

namespace {

/// Swallows what begins an input. Ends go through: a button that is down comes up again.
class InputSink : public QObject
{
public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::TouchBegin:
        case QEvent::TabletPress:
        case QEvent::Wheel:
            return true;
        default:
            return false;
        }
    }
};

void setGrabs(QWindow& popup, bool enabled)
{
    popup.setKeyboardGrabEnabled(enabled);
    popup.setMouseGrabEnabled(enabled);
}

int waits = 0;

} // namespace

WaitState::WaitState()
{
    ++waits;
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    if (const QWidget* popup = QApplication::activePopupWidget()) {
        m_popup = popup->windowHandle();
    }
    if (m_popup) {
        setGrabs(*m_popup, false);
    }
}

WaitState::~WaitState()
{
    InputSink sink;
    qGuiApp->installEventFilter(&sink);
    QCoreApplication::processEvents();
    QGuiApplication::restoreOverrideCursor();
    if (m_popup && m_popup->isVisible()) {
        setGrabs(*m_popup, true);
    }
    --waits;
}

bool WaitState::isWaiting()
{
    return waits > 0;
}

} // namespace aerolith
