#include "ui/common/WiFiSignalBars.h"

#include "ui/common/Theme.h"

#include <QPainter>

#include <algorithm>

namespace aerolith {

namespace {

constexpr double barWidth = 3;
constexpr double barSpacing = 2;
constexpr double heightStep = 3;
constexpr double unlitOpacity = 0.3;

double barHeight(int index)
{
    return heightStep * (index + 1) + heightStep;
}

} // namespace

int WiFiSignalBars::litCount() const
{
    // The weakest signal, dBm, that lights one bar more than the entry before.
    constexpr qint64 thresholds[] = {-95, -85, -75, -65};
    const auto lit = std::count_if(std::begin(thresholds), std::end(thresholds),
                                   [this](qint64 threshold) { return rssi >= threshold; });
    return std::min(static_cast<int>(lit), barCount);
}

QSizeF WiFiSignalBars::size() const
{
    return barCount > 0 ? QSizeF(barCount * (barWidth + barSpacing) - barSpacing, barHeight(barCount - 1))
                        : QSizeF(0, 0);
}

QList<QRectF> WiFiSignalBars::bars(const QRectF& frame) const
{
    QList<QRectF> bars;
    double x = frame.center().x() - size().width() / 2;
    for (int i = 0; i < barCount; ++i) {
        bars.append(QRectF(x, frame.center().y() - barHeight(i) / 2, barWidth, barHeight(i)));
        x += barWidth + barSpacing;
    }
    return bars;
}

QColor WiFiSignalBars::color(bool lit, const QPalette& palette) const
{
    if (isSelected) {
        return lit ? Qt::white : Theme::withOpacity(Qt::white, unlitOpacity);
    }
    return lit ? Theme::accent(palette) : Theme::withOpacity(Theme::gray(), unlitOpacity);
}

void WiFiSignalBars::paint(QPainter& painter, const QRectF& frame, const QPalette& palette) const
{
    const int lit = litCount();
    const QList<QRectF> rects = bars(frame);
    const bool antialiased = painter.testRenderHint(QPainter::Antialiasing);
    // Edges snap to the device's pixels: sharp at every scale.
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int i = 0; i < barCount; ++i) {
        painter.fillRect(rects[i], color(i < lit, palette));
    }
    painter.setRenderHint(QPainter::Antialiasing, antialiased);
}

} // namespace aerolith
