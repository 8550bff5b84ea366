#include "ui/common/WiFiSignalBars.h"

#include "ui/common/Theme.h"

#include <QImage>
#include <QPainter>
#include <QSet>

#include <gtest/gtest.h>

#include <limits>

namespace aerolith {

namespace {

constexpr QRectF frame(10, 5, 20, 15);

/// The glyph on gray, at two device pixels for each point.
QImage painted(const WiFiSignalBars& bars, const QPalette& palette)
{
    QImage image(80, 50, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    image.fill(QColor(128, 128, 128));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    bars.paint(painter, frame, palette);
    return image;
}

} // namespace

TEST(WiFiSignalBars, LightAsTheSignalDeserves)
{
    struct
    {
        qint64 rssi;
        int lit;
    } const cases[] = {{std::numeric_limits<qint64>::max(), 4},
                       {0, 4},
                       {-65, 4},
                       {-66, 3},
                       {-75, 3},
                       {-76, 2},
                       {-85, 2},
                       {-86, 1},
                       {-95, 1},
                       {-96, 0},
                       {std::numeric_limits<qint64>::min(), 0}};

    for (const auto& [rssi, lit] : cases) {
        EXPECT_EQ(WiFiSignalBars{.rssi = rssi}.litCount(), lit) << rssi;
    }
    EXPECT_EQ((WiFiSignalBars{.rssi = -50, .barCount = 2}.litCount()), 2);
    EXPECT_EQ((WiFiSignalBars{.rssi = -50, .barCount = 7}.litCount()), 4);
}

TEST(WiFiSignalBars, GrowBothWaysFromTheMiddleOfTheFrame)
{
    const QList<QRectF> expected{{11, 9.5, 3, 6}, {16, 8, 3, 9}, {21, 6.5, 3, 12}, {26, 5, 3, 15}};
    EXPECT_EQ(WiFiSignalBars{}.bars(frame), expected);
    EXPECT_EQ(WiFiSignalBars{}.size(), QSizeF(18, 15));
    EXPECT_TRUE((WiFiSignalBars{.barCount = 0}.bars(frame).isEmpty()));
}

TEST(WiFiSignalBars, ArePaintedSharpInTheirColours)
{
    QPalette palette;
    palette.setColor(QPalette::Highlight, QColor(200, 100, 0));
    const QPoint onLitBar(2 * 12, 2 * 12);
    const QPoint onUnlitBar(2 * 27, 2 * 12);

    const QImage plain = painted({.rssi = -80}, palette);
    EXPECT_EQ(plain.pixelColor(onLitBar), QColor(200, 100, 0));
    const QColor unlit = Theme::blended(Theme::gray(), QColor(128, 128, 128), 0.3);
    EXPECT_NEAR(plain.pixelColor(onUnlitBar).blue(), unlit.blue(), 1);

    const QImage selected = painted({.rssi = -80, .isSelected = true}, palette);
    EXPECT_EQ(selected.pixelColor(onLitBar), QColor(Qt::white));
    const QColor selectedUnlit = Theme::blended(Qt::white, QColor(128, 128, 128), 0.3);
    EXPECT_NEAR(selected.pixelColor(onUnlitBar).blue(), selectedUnlit.blue(), 1);

    QSet<QRgb> colors;
    for (int x = 0; x < plain.width(); ++x) {
        colors.insert(plain.pixel(x, onLitBar.y()));
    }
    EXPECT_EQ(colors.size(), 3) << "an edge between two pixels";
}

} // namespace aerolith
