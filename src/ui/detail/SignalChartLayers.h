#pragma once

#include "ui/detail/HoverableDot.h"
#include "ui/detail/SignalChartGeometry.h"

#include <QFont>
#include <QList>
#include <QPalette>

namespace aerolith {

/// How a chart looks and what it shows besides the signal.
struct SignalChartParameters
{
    /// The compact form: only the signal line and the area below it.
    bool showMiniVersion = false;
    /// Not in the compact form.
    bool showNoiseLevel = false;
    /// The signal line draws itself when the chart is first seen.
    bool animate = false;
    /// Of the signal and noise lines, device-independent pixels.
    double lineWidth = 1;
    /// Of the area at its top edge, 0 to 1.
    double areaOpacity = 0;
};

/// Paints a signal history into a rectangle of `size` at the painter's origin, layer upon layer. Nothing is
/// clipped to it.
struct SignalChartLayers
{
    SignalChartParameters parameters;
    SignalHistoryList history;
    QSizeF size;
    /// Those of the chart; the font's family counts, not its size.
    QPalette palette;
    QFont font;
    /// Of the text around the chart.
    QColor label;

    /// `drawn` is the part of the signal line that is drawn, 0 to 1. The dots are those of the history, in
    /// its order.
    void paint(QPainter& painter, double drawn, const QList<HoverableDot>& dots) const;

private:
    void paintGrid(QPainter& painter) const;
    void paintArea(QPainter& painter) const;
    void paintSignalLine(QPainter& painter, double drawn) const;
    void paintNoiseLine(QPainter& painter) const;
    void paintValueLabels(QPainter& painter) const;

    [[nodiscard]] SignalChartGeometry geometry() const { return {history, size}; }
};

} // namespace aerolith
