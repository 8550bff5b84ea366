#include "ui/detail/SignalChartLayers.h"

#include "ui/common/Theme.h"

#include <QFontMetricsF>
#include <QPainter>

namespace aerolith {

namespace {

constexpr double gridWidth = 0.5;
constexpr double gridOpacity = 0.2;
constexpr double miterLimit = 10;
/// How much fainter the area is at its bottom edge.
constexpr double areaFading = 6;

QPen stroke(const QColor& color, double width)
{
    QPen pen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin);
    pen.setMiterLimit(miterLimit);
    return pen;
}

} // namespace

void SignalChartLayers::paint(QPainter& painter, double drawn, const QList<HoverableDot>& dots) const
{
    const bool isFull = !parameters.showMiniVersion;
    if (isFull) {
        paintGrid(painter);
    }
    paintArea(painter);
    paintSignalLine(painter, drawn);
    if (isFull && parameters.showNoiseLevel) {
        paintNoiseLine(painter);
    }
    if (isFull) {
        for (const HoverableDot& dot : dots) {
            dot.paint(painter, palette, font);
        }
        paintValueLabels(painter);
    }
}

void SignalChartLayers::paintGrid(QPainter& painter) const
{
    painter.setPen(stroke(Theme::withOpacity(label, gridOpacity), gridWidth));
    painter.drawLines(geometry().gridLines());
}

void SignalChartLayers::paintArea(QPainter& painter) const
{
    const QColor green = Theme::green(palette);
    QLinearGradient fading(0, 0, 0, size.height());
    fading.setColorAt(0, Theme::withOpacity(green, parameters.areaOpacity));
    fading.setColorAt(1, Theme::withOpacity(green, parameters.areaOpacity / areaFading));
    painter.fillPath(geometry().area(), fading);
}

void SignalChartLayers::paintSignalLine(QPainter& painter, double drawn) const
{
    painter.strokePath(trimmed(geometry().signalLine(), drawn),
                       stroke(Theme::green(palette), parameters.lineWidth));
}

void SignalChartLayers::paintNoiseLine(QPainter& painter) const
{
    painter.strokePath(geometry().noiseLine(), stroke(Theme::red(palette), parameters.lineWidth));
}

void SignalChartLayers::paintValueLabels(QPainter& painter) const
{
    const QFont labelFont = Theme::font(font, TextStyle::caption2);
    const QFontMetricsF metrics(labelFont);
    QStringList texts;
    QList<double> widths;
    for (const qint64 value : gridValues(signalRange(history))) {
        texts.append(QString::number(value));
        widths.append(metrics.horizontalAdvance(texts.last()));
    }
    const QList<QRectF> labels = valueLabels(widths, metrics.height(), size);
    painter.setFont(labelFont);
    painter.setPen(Theme::gray());
    for (qsizetype i = 0; i < texts.size(); ++i) {
        painter.drawText(labels[i], Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip, texts[i]);
    }
}

} // namespace aerolith
