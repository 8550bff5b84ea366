#include "ui/common/FocusRing.h"

#include "ui/common/Theme.h"

#include <QPainter>

namespace aerolith {

namespace {

constexpr double ringThickness = 2;
constexpr double radius = 4;

} // namespace

void paintFocusRing(QPainter& painter, const QRect& control, const QPalette& palette)
{
    constexpr double inset = ringThickness / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Theme::accent(palette), ringThickness));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(control).adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

} // namespace aerolith
