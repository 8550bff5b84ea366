#include "ui/main/CircleLine.h"

#include "ui/common/Theme.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace aerolith {

namespace {

/// How far a circle reaches to either side at this distance from its centre; nowhere beyond its radius.
double halfChord(double radius, double distance)
{
    return std::sqrt(std::max(0.0, radius * radius - distance * distance));
}

} // namespace

void paintCircle(QPainter& painter, const QPointF& centre, double radius, double lineWidth,
                 const QColor& color)
{
    constexpr double softness = 0.5;
    const double inner = radius - lineWidth / 2;
    const double outer = radius + lineWidth / 2;
    const double reach = outer + softness;
    const QColor clear = Theme::withOpacity(color, 0);
    QRadialGradient line(centre, reach);
    line.setColorAt((inner - softness) / reach, clear);
    line.setColorAt((inner + softness) / reach, color);
    line.setColorAt((outer - softness) / reach, color);
    line.setColorAt(1, clear);
    const QBrush brush(line);
    // Only where the line is: with each pixel more, a gradient takes longer. Without
    // antialiasing the bands meet in no seam; the line's edges are soft by the gradient.
    constexpr double bandHeight = 8;
    for (double top = -reach; top < reach; top += bandHeight) {
        const double bottom = std::min(top + bandHeight, reach);
        const double nearest = top < 0 && bottom > 0 ? 0 : std::min(std::abs(top), std::abs(bottom));
        const double farthest = std::max(std::abs(top), std::abs(bottom));
        const double left = -halfChord(reach, nearest);
        const double hole = halfChord(inner - softness, farthest);
        if (hole == 0) {
            // Two rectangles would leave a seam in the middle.
            painter.fillRect(QRectF(QPointF(left, top), QPointF(-left, bottom)).translated(centre), brush);
            continue;
        }
        painter.fillRect(QRectF(QPointF(left, top), QPointF(-hole, bottom)).translated(centre), brush);
        painter.fillRect(QRectF(QPointF(hole, top), QPointF(-left, bottom)).translated(centre), brush);
    }
}

} // namespace aerolith
