#include "ui/menubar/WaitState.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>

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

} // namespace

WaitState::WaitState()
{
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
}

WaitState::~WaitState()
{
    InputSink sink;
    qGuiApp->installEventFilter(&sink);
    QCoreApplication::processEvents();
    QGuiApplication::restoreOverrideCursor();
}

} // namespace aerolith
