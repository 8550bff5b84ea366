#include "ui/main/NetworkRowLayout.h"

#include <QList>

#include <gtest/gtest.h>

namespace aerolith {

namespace {

constexpr NetworkRowMetrics metrics{
    .nameWidth = 80, .nameHeight = 17, .detailsHeight = 15, .signalWidth = 50};

/// The elements from left to right, but for the details below the name.
QList<QRectF> elements(const NetworkRowLayout& layout)
{
    QList<QRectF> elements{layout.bars, layout.name};
    if (layout.checkmark) {
        elements.append(*layout.checkmark);
    }
    return elements << layout.symbol << layout.signal;
}

} // namespace

TEST(NetworkRowLayout, PlacesTheElementsOfAWideRow)
{
    EXPECT_EQ(networkRowHeight(metrics), 6 + 17 + 4 + 15 + 6);

    const QRectF row(100, 200, 320, 48);
    const NetworkRowLayout layout = layOutNetworkRow(row, metrics, true);
    EXPECT_EQ(layout.bars, QRectF(112, 216.5, 20, 15));
    EXPECT_EQ(layout.name, QRectF(144, 206, 80, 17));
    EXPECT_EQ(layout.checkmark, QRectF(230, 208.5, 12, 12));
    EXPECT_EQ(layout.details.topLeft(), QPointF(144, 227));
    EXPECT_EQ(layout.details.bottom(), row.bottom() - 6);
    EXPECT_EQ(layout.signal, QRectF(358, 216.5, 50, 15));
    EXPECT_EQ(layout.symbol, QRectF(334, 218, 12, 12));
    EXPECT_FALSE(layOutNetworkRow(row, metrics, false).checkmark.has_value());
}

TEST(NetworkRowLayout, NeverOverlapsHoweverLongTheNameOrNarrowTheRow)
{
    for (const bool isJoined : {false, true}) {
        for (int width = 170; width <= 800; width += 7) {
            SCOPED_TRACE(width);
            NetworkRowMetrics longName = metrics;
            longName.nameWidth = 5000;
            const NetworkRowLayout layout = layOutNetworkRow(QRectF(0, 0, width, 48), longName, isJoined);
            const QList<QRectF> placed = elements(layout);
            for (qsizetype i = 1; i < placed.size(); ++i) {
                EXPECT_LT(placed[i - 1].right(), placed[i].left());
            }
            EXPECT_LT(layout.details.right(), layout.symbol.left());
            EXPECT_LE(layout.signal.right(), width);
        }
    }
    EXPECT_EQ(layOutNetworkRow(QRectF(0, 0, 60, 48), metrics, false).name.width(), 0);
}

TEST(NetworkRowLayout, IsMirroredForLanguagesFromRightToLeft)
{
    const QRectF row(100, 0, 320, 48);
    const NetworkRowLayout layout = layOutNetworkRow(row, metrics, true);
    const NetworkRowLayout mirrored = layout.mirrored(row);
    EXPECT_EQ(mirrored.bars.right(), row.right() - 12);
    EXPECT_EQ(mirrored.signal.left(), row.left() + 12);
    EXPECT_LT(mirrored.checkmark->right(), mirrored.name.left());
    EXPECT_EQ(mirrored.mirrored(row).symbol, layout.symbol);
}

} // namespace aerolith
