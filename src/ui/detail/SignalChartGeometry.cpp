#include "ui/detail/SignalChartGeometry.h"

#include <algorithm>
#include <array>

namespace aerolith {

namespace {

/// dBm above the strongest and below the weakest sample.
constexpr qint64 room = 5;
constexpr qint64 gridDivisions = 6;
constexpr double labelSpacing = 4;

/// A Bézier segment of a path: start, two control points, end.
using Segment = std::array<QPointF, 4>;

/// The segment whose curve element is at `index`.
Segment segmentAt(const QPainterPath& path, int index)
{
    return {path.elementAt(index - 1), path.elementAt(index), path.elementAt(index + 1),
            path.elementAt(index + 2)};
}

void append(QPainterPath& path, const Segment& segment)
{
    path.cubicTo(segment[1], segment[2], segment[3]);
}

QPainterPath pathOf(const Segment& segment)
{
    QPainterPath path(segment[0]);
    append(path, segment);
    return path;
}

/// The part of the segment from its start to its parameter `t`, by de Casteljau's construction.
Segment firstPart(const Segment& segment, double t)
{
    const auto between = [t](const QPointF& a, const QPointF& b) { return a + (b - a) * t; };
    const QPointF middle = between(segment[1], segment[2]);
    const QPointF first = between(segment[0], segment[1]);
    const QPointF second = between(first, middle);
    return {segment[0], first, second, between(second, between(middle, between(segment[2], segment[3])))};
}

} // namespace

SignalRange signalRange(const SignalHistoryList& history)
{
    if (history.isEmpty()) {
        return {};
    }
    const SignalExtremes extremes = signalExtremes(history);
    return {.min = extremes.weakest - room, .max = extremes.strongest + room};
}

QList<qint64> gridValues(const SignalRange& range)
{
    const qint64 step = std::max<qint64>(1, (range.max - range.min) / gridDivisions);
    QList<qint64> values;
    for (qint64 value = range.max; value >= range.min; value -= step) {
        values.append(value);
    }
    return values;
}

SignalChartGeometry::SignalChartGeometry(const SignalHistoryList& history, const QSizeF& size)
    : m_history(history), m_size(size), m_range(signalRange(history))
{
}

double SignalChartGeometry::x(qsizetype index) const
{
    const auto intervals = static_cast<double>(std::max<qsizetype>(m_history.size(), 2) - 1);
    return static_cast<double>(index) * (m_size.width() / intervals);
}

double SignalChartGeometry::y(qint64 value) const
{
    const auto aboveMin = static_cast<double>(value - m_range.min);
    return m_size.height() * (1 - aboveMin / static_cast<double>(m_range.max - m_range.min));
}

QPointF SignalChartGeometry::point(qsizetype index, Field field) const
{
    return {x(index), y(m_history[index].*field)};
}

QPointF SignalChartGeometry::signalPoint(qsizetype index) const
{
    return point(index, &SignalHistory::rssi);
}

void SignalChartGeometry::addSegments(QPainterPath& path, Field field) const
{
    for (qsizetype i = 1; i < m_history.size(); ++i) {
        const QPointF start = point(i - 1, field);
        const QPointF end = point(i, field);
        const double middle = start.x() + (end.x() - start.x()) * 0.5;
        path.cubicTo({middle, start.y()}, {middle, end.y()}, end);
    }
}

QPainterPath SignalChartGeometry::line(Field field) const
{
    if (m_history.isEmpty()) {
        return {};
    }
    QPainterPath line(point(0, field));
    addSegments(line, field);
    return line;
}

QPainterPath SignalChartGeometry::signalLine() const
{
    return line(&SignalHistory::rssi);
}

QPainterPath SignalChartGeometry::noiseLine() const
{
    return line(&SignalHistory::noise);
}

QPainterPath SignalChartGeometry::area() const
{
    if (m_history.isEmpty()) {
        return {};
    }
    QPainterPath area(QPointF(0, m_size.height()));
    area.lineTo(signalPoint(0));
    addSegments(area, &SignalHistory::rssi);
    area.lineTo(m_size.width(), m_size.height());
    area.closeSubpath();
    return area;
}

QList<QLineF> SignalChartGeometry::gridLines() const
{
    QList<QLineF> lines;
    for (const qint64 value : gridValues(m_range)) {
        lines.append(QLineF(0, y(value), m_size.width(), y(value)));
    }
    return lines;
}

QList<QRectF> valueLabels(const QList<double>& widths, double height, const QSizeF& size)
{
    if (widths.isEmpty()) {
        return {};
    }
    const double column = *std::max_element(widths.cbegin(), widths.cend());
    const auto count = static_cast<double>(widths.size());
    double top = (size.height() - count * height - (count - 1) * labelSpacing) / 2;
    QList<QRectF> labels;
    for (const double width : widths) {
        labels.append(QRectF(column - width, top, width, height));
        top += height + labelSpacing;
    }
    return labels;
}

QPainterPath trimmed(const QPainterPath& line, double fraction)
{
    if (fraction >= 1 || line.isEmpty()) {
        return line;
    }
    QPainterPath drawn(line.elementAt(0));
    double left = line.length() * fraction;
    for (int i = 1; i < line.elementCount() && left > 0; i += 3) {
        const Segment segment = segmentAt(line, i);
        const QPainterPath path = pathOf(segment);
        const double length = path.length();
        // A path of one segment tells the segment's own parameter.
        append(drawn, length > left ? firstPart(segment, path.percentAtLength(left)) : segment);
        left -= length;
    }
    return drawn;
}

} // namespace aerolith
