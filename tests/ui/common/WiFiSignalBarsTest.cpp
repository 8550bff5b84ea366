#include "ui/common/WiFiSignalBars.h"

#include "ui/Colours.h"
#include "ui/common/Theme.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <limits>
#include <utility>

namespace aerolith {

TEST(WiFiSignalBars, LightAsTheSignalDeserves)
{
    using Limits = std::numeric_limits<qint64>;
    const QList<std::pair<qint64, int>> cases{{Limits::max(), 4}, {-65, 4},          {-66, 3}, {-75, 3},
                                              {-76, 2},           {-85, 2},          {-86, 1}, {-95, 1},
                                              {-96, 0},           {Limits::min(), 0}};
    for (const auto& [rssi, lit] : cases) {
        EXPECT_EQ(WiFiSignalBars{.rssi = rssi}.litCount(), lit) << rssi;
    }
}

TEST(WiFiSignalBars, ArePaintedSharpInTheirColours)
{
    const QColor ground(128, 128, 128);
    for (const bool isSelected : {false, true}) {
        SCOPED_TRACE(isSelected);
        QImage image(80, 50, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(2);
        image.fill(ground);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        WiFiSignalBars{.rssi = -80, .isSelected = isSelected}.paint(painter, {10.2, 5, 20, 15}, QPalette());
        const QColor lit = isSelected ? QColor(Qt::white) : Theme::accent(QPalette());
        EXPECT_EQ(image.pixelColor(2 * 12, 2 * 12), lit);
        EXPECT_EQ(coloursOf(image.copy(0, 2 * 12, image.width(), 1)).size(), 3)
            << "an edge between two pixels";
        for (const int y : {8, 16}) {
            EXPECT_EQ(image.pixelColor(2 * 12, 2 * y), ground) << "the shortest, in the middle";
            EXPECT_NE(image.pixelColor(2 * 27, 2 * y), ground);
        }
    }
}

} // namespace aerolith
