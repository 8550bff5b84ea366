#include "ui/common/WiFiSignalBars.h"

#include "ui/Colours.h"
#include "ui/common/Theme.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <limits>
#include <utility>

namespace aerolith {

namespace {

constexpr QRectF frame(10, 5, 20, 15);
constexpr QColor ground(128, 128, 128);

/// The glyph on gray, at two device pixels for each point.
QImage painted(const WiFiSignalBars& bars, const QPalette& palette)
{
    QImage image(80, 50, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    bars.paint(painter, frame, palette);
    return image;
}

} // namespace

TEST(WiFiSignalBars, LightAsTheSignalDeserves)
{
    using Limits = std::numeric_limits<qint64>;
    const QList<std::pair<qint64, int>> cases{{Limits::max(), 4}, {-65, 4},          {-66, 3}, {-75, 3},
                                              {-76, 2},           {-85, 2},          {-86, 1}, {-95, 1},
                                              {-96, 0},           {Limits::min(), 0}};
    for (const auto& [rssi, lit] : cases) {
        EXPECT_EQ(WiFiSignalBars{.rssi = rssi}.litCount(), lit) << rssi;
    }
    EXPECT_EQ((WiFiSignalBars{.rssi = -50, .barCount = 2}.litCount()), 2);
    EXPECT_EQ((WiFiSignalBars{.rssi = -50, .barCount = 7}.litCount()), 4);
}

TEST(WiFiSignalBars, ArePaintedSharpInTheirColours)
{
    const QColor accent(200, 100, 0);
    QPalette palette;
    palette.setColor(QPalette::Highlight, accent);
    for (const bool isSelected : {false, true}) {
        SCOPED_TRACE(isSelected);
        const QImage image = painted({.rssi = -80, .isSelected = isSelected}, palette);
        EXPECT_EQ(image.pixelColor(2 * 12, 2 * 12), isSelected ? QColor(Qt::white) : accent);
        const QColor unlit = Theme::blended(isSelected ? Qt::white : Theme::gray(), ground, 0.3);
        EXPECT_NEAR(image.pixelColor(2 * 27, 2 * 12).blue(), unlit.blue(), 1);
        const QImage line = image.copy(0, 2 * 12, image.width(), 1);
        EXPECT_EQ(coloursOf(line).size(), 3) << "an edge between two pixels";
        for (const int y : {8, 16}) {
            EXPECT_EQ(image.pixelColor(2 * 12, 2 * y), ground) << "the shortest, in the middle";
            EXPECT_NE(image.pixelColor(2 * 27, 2 * y), ground);
        }
    }
}

} // namespace aerolith
