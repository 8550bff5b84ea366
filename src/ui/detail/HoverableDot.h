#pragma once

#include "model/SignalHistory.h"

#include <QPointF>
#include <QRectF>
#include <QStringList>

class QFont;
class QPainter;
class QPalette;

namespace aerolith {

/// One sample on the chart: a dot that grows while the pointer rests on it, and the box beside it that then
/// reads the sample out. In the chart's coordinates, device-independent pixels.
struct HoverableDot
{
    static constexpr double dotRadius = 3;

    /// The centre of the dot.
    QPointF position;
    SignalHistory data;
    /// From 0, at rest, to 1, hovered: twice as large, the box fully visible.
    double growth = 0;
    /// Of the chart's rectangle: near its right edge the box stands to the left.
    double totalWidth = 0;

    /// The square around the dot as large as it is now, which is what the pointer has to rest on.
    [[nodiscard]] QRectF square() const;

    /// The lines of the box.
    [[nodiscard]] QStringList readOut() const;

    /// Also where it reaches past the chart. `font` is the chart's; its family counts, not its size.
    [[nodiscard]] QRectF readOutBox(const QFont& font) const;

    void paintDot(QPainter& painter, const QPalette& palette) const;

    /// Nothing while the dot is at rest.
    void paintReadOut(QPainter& painter, const QFont& font) const;
};

} // namespace aerolith
