#include "ui/menubar/MenuRowLayout.h"

#include "ui/common/Rectangles.h"

#include <algorithm>

namespace aerolith {

namespace {

constexpr double sidePadding = 12;
constexpr double verticalPadding = 8;
constexpr double itemSpacing = 8;
constexpr double lineSpacing = 2;
constexpr double connectSpacing = 4;
constexpr double dividerHeight = 1;
constexpr double symbolSize = 12;
constexpr double chartHeight = 20;
constexpr double chartPadding = 4;
constexpr QSizeF barsSize{18, 15};

double textHeight(const MenuRowMetrics& metrics, bool isJoined)
{
    return metrics.nameHeight + (isJoined ? lineSpacing + chartPadding + chartHeight + chartPadding : 0);
}

double contentHeight(const MenuRowMetrics& metrics, bool isJoined)
{
    return std::max({textHeight(metrics, isJoined), barsSize.height(), metrics.connectHeight});
}

} // namespace

QRectF MenuRowLayout::button() const
{
    if (!connect) {
        return {};
    }
    const QRectF content = connect->united(symbol);
    return {content.left() - sidePadding, row.top(), content.width() + 2 * sidePadding, row.height()};
}

MenuRowLayout MenuRowLayout::mirrored() const
{
    const auto mirror = [this](const auto& rect) { return aerolith::mirrored(rect, row); };
    return {.row = row,
            .bars = mirror(bars),
            .name = mirror(name),
            .connect = mirror(connect),
            .symbol = mirror(symbol),
            .chart = mirror(chart),
            .divider = divider};
}

double menuRowHeight(const MenuRowMetrics& metrics, bool isJoined)
{
    return contentHeight(metrics, isJoined) + 2 * verticalPadding + (isJoined ? 0 : dividerHeight);
}

MenuRowLayout layOutMenuRow(const QRectF& row, const MenuRowMetrics& metrics, bool isJoined)
{
    MenuRowLayout layout;
    layout.row = row.adjusted(0, 0, 0, isJoined ? 0 : -dividerHeight);
    const double middle = layout.row.center().y();
    layout.bars = centredBeside(row.left() + sidePadding, middle, barsSize);
    layout.symbol = centredBeside(row.right() - sidePadding - symbolSize, middle, {symbolSize, symbolSize});
    double trailing = layout.symbol.left();
    if (!isJoined) {
        layout.connect = centredBeside(trailing - connectSpacing - metrics.connectWidth, middle,
                                       {metrics.connectWidth, metrics.connectHeight});
        trailing = layout.connect->left();
        layout.divider = QRectF(row.left(), row.bottom() - dividerHeight, row.width(), dividerHeight);
    }

    // The flexible space has the row's spacing on both sides.
    const double left = layout.bars.right() + itemSpacing;
    const double width = std::max(0.0, trailing - 2 * itemSpacing - left);
    layout.name = QRectF(left, middle - textHeight(metrics, isJoined) / 2, width, metrics.nameHeight);
    if (isJoined) {
        layout.chart = QRectF(left, layout.name.bottom() + lineSpacing + chartPadding, width, chartHeight);
    }
    return layout;
}

} // namespace aerolith
