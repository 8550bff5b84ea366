#include "app/WindowIcon.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QTimer>
#include <QWidget>

namespace aerolith {

using namespace Qt::StringLiterals;

WindowIcon::WindowIcon(QWidget& window) : QObject(&window)
{
    window.installEventFilter(this);
}

bool WindowIcon::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        QTimer::singleShot(0, this, [] {
            QApplication::setWindowIcon(QIcon::fromTheme(u"org.aerolith.Aerolith"_s,
                                                         QIcon(u":/aerolith/org.aerolith.Aerolith.svg"_s)));
        });
    }
    return false;
}

} // namespace aerolith
