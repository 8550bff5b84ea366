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
    /// The centre of the dot.
    QPointF position;
    SignalHistory data;
    /// The pointer rests on it.
    bool isHovered = false;
    /// How far that shows: from 0, as at rest, to 1, twice as large and the box fully visible.
    double growth = 0;
    /// Of the chart's rectangle: near its right edge the box stands to the left.
    double totalWidth = 0;

    /// What the pointer has to rest on: the square around the dot, at once as large as the dot becomes.
    [[nodiscard]] QRectF target() const;

    /// The lines of the box.
    [[nodiscard]] QStringList readOut() const;

    /// Also where it reaches past the chart. `font` is the chart's; its family counts, not its size.
    [[nodiscard]] QRectF readOutBox(const QFont& font) const;

    /// All that it paints lies in here.
    [[nodiscard]] QRectF extent(const QFont& font) const;

    void paint(QPainter& painter, const QPalette& palette, const QFont& font) const;

private:
    void paintReadOut(QPainter& painter, const QFont& font) const;
};

} // namespace aerolith
