#pragma once

#include "model/SignalHistoryList.h"

#include <QLineF>
#include <QList>
#include <QPainterPath>
#include <QRectF>
#include <QSizeF>

namespace aerolith {

/// A vertical scale in whole dBm. `max` is above `min`.
struct SignalRange
{
    qint64 min = -100;
    qint64 max = 0;

    friend bool operator==(const SignalRange& a, const SignalRange& b) = default;
};

/// The scale that shows every RSSI of the history with some room above and below. Noise has no say in it.
[[nodiscard]] SignalRange signalRange(const SignalHistoryList& history);

/// The values that have a line of the grid, highest first; in steps of at least 1.
[[nodiscard]] QList<qint64> gridValues(const SignalRange& range);

/// A signal history in a rectangle of `size`: the oldest sample on its left edge, the latest of several on
/// its right edge. Device-independent pixels from the rectangle's top left corner; y grows downwards. Noise
/// below or above the scale lies outside the rectangle.
class SignalChartGeometry
{
public:
    SignalChartGeometry(const SignalHistoryList& history, const QSizeF& size);

    /// Where a sample stands on the signal line.
    [[nodiscard]] QPointF signalPoint(qsizetype index) const;

    /// Through every sample, horizontal at each. Empty without samples.
    [[nodiscard]] QPainterPath signalLine() const;

    /// Below the signal line, closed. Empty without samples.
    [[nodiscard]] QPainterPath area() const;

    /// As the signal line, for the noise.
    [[nodiscard]] QPainterPath noiseLine() const;

    /// One line across the rectangle for each of the grid's values.
    [[nodiscard]] QList<QLineF> gridLines() const;

private:
    /// RSSI or noise.
    using Field = qint64 SignalHistory::*;

    [[nodiscard]] double x(qsizetype index) const;
    [[nodiscard]] double y(qint64 value) const;
    [[nodiscard]] QPointF point(qsizetype index, Field field) const;
    [[nodiscard]] QPainterPath line(Field field) const;
    /// From the first sample's point, where the path stands, to the last one's.
    void addSegments(QPainterPath& path, Field field) const;

    SignalHistoryList m_history;
    QSizeF m_size;
    SignalRange m_range;
};

/// Where the values of the grid are written: one text under the other, right-aligned, as a block of their own
/// in the middle of the rectangle's left edge. As many rectangles as `widths`, which are those of the texts.
[[nodiscard]] QList<QRectF> valueLabels(const QList<double>& widths, double height, const QSizeF& size);

/// The part of `line` from its start to a fraction, 0 to 1, of its length along the curve. `line` is one
/// piece made of Bézier segments.
[[nodiscard]] QPainterPath trimmed(const QPainterPath& line, double fraction);

} // namespace aerolith
