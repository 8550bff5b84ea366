#include "ui/common/RowText.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace aerolith {

void drawRowText(QPainter& painter, const QRectF& place, const QString& text, const QFont& font,
                 bool isMirrored)
{
    const QFontMetricsF metrics(font);
    const QString shown = metrics.elidedText(text, Qt::ElideRight, place.width());
    const double left = isMirrored ? place.right() - metrics.horizontalAdvance(shown) : place.left();
    painter.setFont(font);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    painter.drawText(QPointF(left, std::round(place.top() + metrics.ascent())), shown);
}

} // namespace aerolith
