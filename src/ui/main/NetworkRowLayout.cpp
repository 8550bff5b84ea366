#include "ui/main/NetworkRowLayout.h"

#include "ui/common/Rectangles.h"

#include <algorithm>

namespace aerolith {

namespace {

constexpr double sidePadding = 12;
constexpr double verticalPadding = 6;
constexpr double spacing = 12;
constexpr double lineSpacing = 4;
constexpr double checkmarkSpacing = 6;
constexpr QSizeF rowBarsSize{20, 15};
constexpr double rowSymbolSide = 12;
constexpr QSizeF rowSymbolSize{rowSymbolSide, rowSymbolSide};

double firstLineHeight(const NetworkRowMetrics& metrics)
{
    return std::max(metrics.nameHeight, rowSymbolSide);
}

double linesHeight(const NetworkRowMetrics& metrics)
{
    return firstLineHeight(metrics) + lineSpacing + metrics.detailsHeight;
}

} // namespace

double networkRowHeight(const NetworkRowMetrics& metrics)
{
    return std::max(linesHeight(metrics), rowBarsSize.height()) + 2 * verticalPadding;
}

NetworkRowLayout layOutNetworkRow(const QRectF& row, const NetworkRowMetrics& metrics, bool isJoined)
{
    const double middle = row.center().y();
    NetworkRowLayout layout;
    layout.bars = centredBeside(row.left() + sidePadding, middle, rowBarsSize);
    layout.signal = centredBeside(row.right() - sidePadding - metrics.signalWidth, middle,
                                  {metrics.signalWidth, metrics.detailsHeight});
    layout.symbol = centredBeside(layout.signal.left() - spacing - rowSymbolSide, middle, rowSymbolSize);

    // The flexible space has the row's spacing on both sides.
    const double left = layout.bars.right() + spacing;
    const double available = std::max(0.0, layout.symbol.left() - 2 * spacing - left);
    const double firstLine = firstLineHeight(metrics);
    const double top = middle - linesHeight(metrics) / 2;
    const double mark = isJoined ? checkmarkSpacing + rowSymbolSide : 0;
    const double nameWidth = std::clamp(metrics.nameWidth, 0.0, std::max(0.0, available - mark));

    layout.name = centredBeside(left, top + firstLine / 2, {nameWidth, metrics.nameHeight});
    if (isJoined) {
        layout.checkmark =
            centredBeside(layout.name.right() + checkmarkSpacing, top + firstLine / 2, rowSymbolSize);
    }
    layout.details = QRectF(left, top + firstLine + lineSpacing, available, metrics.detailsHeight);
    return layout;
}

NetworkRowLayout NetworkRowLayout::mirrored(const QRectF& row) const
{
    const auto mirror = [&row](const auto& rect) { return aerolith::mirrored(rect, row); };
    return {.bars = mirror(bars),
            .name = mirror(name),
            .checkmark = mirror(checkmark),
            .details = mirror(details),
            .symbol = mirror(symbol),
            .signal = mirror(signal)};
}

} // namespace aerolith
