#include "ui/main/NetworkRowLayout.h"

#include <algorithm>

namespace aerolith {

namespace {

constexpr double sidePadding = 12;
constexpr double verticalPadding = 6;
constexpr double spacing = 12;
constexpr double lineSpacing = 4;
constexpr double checkmarkSpacing = 6;
constexpr double barsWidth = 20;
constexpr double barsHeight = 15;
constexpr double rowSymbolSize = 12;

double firstLineHeight(const NetworkRowMetrics& metrics)
{
    return std::max(metrics.nameHeight, rowSymbolSize);
}

double linesHeight(const NetworkRowMetrics& metrics)
{
    return firstLineHeight(metrics) + lineSpacing + metrics.detailsHeight;
}

/// From `left` in the row's or line's vertical middle.
QRectF centred(double left, double middle, double width, double height)
{
    return {left, middle - height / 2, width, height};
}

} // namespace

double networkRowHeight(const NetworkRowMetrics& metrics)
{
    return std::max(linesHeight(metrics), barsHeight) + 2 * verticalPadding;
}

NetworkRowLayout layOutNetworkRow(const QRectF& row, const NetworkRowMetrics& metrics, bool isJoined)
{
    const double middle = row.center().y();
    NetworkRowLayout layout;
    layout.bars = centred(row.left() + sidePadding, middle, barsWidth, barsHeight);
    layout.signal = centred(row.right() - sidePadding - metrics.signalWidth, middle, metrics.signalWidth,
                            metrics.detailsHeight);
    layout.symbol =
        centred(layout.signal.left() - spacing - rowSymbolSize, middle, rowSymbolSize, rowSymbolSize);

    // The flexible space has the row's spacing on both sides.
    const double left = layout.bars.right() + spacing;
    const double available = std::max(0.0, layout.symbol.left() - 2 * spacing - left);
    const double firstLine = firstLineHeight(metrics);
    const double top = middle - linesHeight(metrics) / 2;
    const double mark = isJoined ? checkmarkSpacing + rowSymbolSize : 0;
    const double nameWidth = std::clamp(metrics.nameWidth, 0.0, std::max(0.0, available - mark));

    layout.name = centred(left, top + firstLine / 2, nameWidth, metrics.nameHeight);
    if (isJoined) {
        layout.checkmark = centred(layout.name.right() + checkmarkSpacing, top + firstLine / 2, rowSymbolSize,
                                   rowSymbolSize);
    }
    layout.details = QRectF(left, top + firstLine + lineSpacing, available, metrics.detailsHeight);
    return layout;
}

NetworkRowLayout NetworkRowLayout::mirrored(const QRectF& row) const
{
    const auto mirror = [&row](const QRectF& rect) {
        return rect.translated(row.left() + row.right() - rect.left() - rect.right(), 0);
    };
    return {.bars = mirror(bars),
            .name = mirror(name),
            .checkmark = checkmark ? std::optional(mirror(*checkmark)) : std::nullopt,
            .details = mirror(details),
            .symbol = mirror(symbol),
            .signal = mirror(signal)};
}

} // namespace aerolith
