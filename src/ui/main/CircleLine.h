#pragma once

class QColor;
class QPainter;
class QPointF;

namespace aerolith {

/// Draws a circular line, as a gradient with edges one pixel soft: it takes Qt three times as long to stroke
/// a circle of some hundred pixels. `lineWidth` is less than the radius, which is that of the line's middle.
void paintCircle(QPainter& painter, const QPointF& centre, double radius, double lineWidth,
                 const QColor& color);

} // namespace aerolith
