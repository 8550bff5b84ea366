#include "app/WindowIcon.h"

#include "app/FirstPainting.h"

#include <QApplication>
#include <QIcon>
#include <QWidget>

namespace aerolith {

using namespace Qt::StringLiterals;

void setWindowIconOnceShown(QWidget& window)
{
    afterFirstPainting(window, window, [] {
        QApplication::setWindowIcon(
            QIcon::fromTheme(u"org.aerolith.Aerolith"_s, QIcon(u":/aerolith/org.aerolith.Aerolith.svg"_s)));
    });
}

} // namespace aerolith
