#include "ui/detail/SignalChartLayers.h"

#include "ui/Colours.h"
#include "ui/detail/SampleHistory.h"

#include <QApplication>
#include <QPainter>

#include <gtest/gtest.h>

namespace aerolith {

namespace {

constexpr QSize size(600, 250);
constexpr double areaOpacity = 0.5;

/// On white: a signal in the middle, noise below it, an enlarged dot on the middle sample.
QImage painted(const SignalChartParameters& parameters)
{
    const SignalHistoryList samples = history({-50, -50, -50}, -53);
    const SignalChartLayers layers{.parameters = parameters,
                                   .history = samples,
                                   .size = size,
                                   .palette = QApplication::palette(),
                                   .font = QApplication::font(),
                                   .label = Qt::black};
    const HoverableDot dot{
        .position = {300, 125}, .data = samples[1], .isHovered = true, .growth = 1, .totalWidth = 600};
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    layers.paint(painter, 1, {dot});
    return image;
}

} // namespace

TEST(SignalChartLayers, AreThoseOfTheForm)
{
    const QColor green = Theme::green(QApplication::palette());
    const QColor red = Theme::red(QApplication::palette());
    const QPoint onDot(300, 121);
    const QPoint onNoise(450, 200);
    const QPoint onGrid(450, 25);

    const QImage full = painted({.showNoiseLevel = true, .lineWidth = 3, .areaOpacity = areaOpacity});
    EXPECT_EQ(full.pixelColor(450, 125), green);
    EXPECT_EQ(full.pixelColor(onNoise), red);
    EXPECT_EQ(full.pixelColor(onDot), green);
    EXPECT_NE(full.pixelColor(onGrid), QColor(Qt::white));
    EXPECT_NE(full.copy(0, 60, 30, 60), full.copy(450, 60, 30, 60)) << "values along the left edge";

    const QImage quiet = painted({.lineWidth = 3, .areaOpacity = areaOpacity});
    EXPECT_NE(quiet.pixelColor(onNoise), red);
    EXPECT_EQ(quiet.pixelColor(onDot), green);

    const QImage compact = painted(
        {.showMiniVersion = true, .showNoiseLevel = true, .lineWidth = 3, .areaOpacity = areaOpacity});
    EXPECT_EQ(compact.pixelColor(450, 125), green);
    EXPECT_NE(compact.pixelColor(onNoise), red);
    EXPECT_EQ(coloursOf(compact.copy(0, 0, size.width(), 123)).size(), 1) << "no dot, grid or values";
    for (const int y : {140, 248}) {
        const double opacity = areaOpacity * (1 - (y + 0.5) / size.height() * 5 / 6);
        EXPECT_NEAR(compact.pixelColor(450, y).red(), Theme::blended(green, Qt::white, opacity).red(), 2)
            << "fading from the top edge to a sixth at the bottom";
    }
}

TEST(HoverableDot, ReadsOutTowardsTheMiddleNearTheRightEdge)
{
    HoverableDot dot{.position = {500, 0}, .data = {}, .totalWidth = 600};
    EXPECT_GT(dot.readOutBox(QApplication::font()).center().x(), 500);
    dot.position.setX(500.5);
    EXPECT_LT(dot.readOutBox(QApplication::font()).center().x(), 500);
}

} // namespace aerolith
