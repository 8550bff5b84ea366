#include "ui/detail/SignalChartLayers.h"

#include "ui/Colours.h"
#include "ui/detail/SampleHistory.h"

#include <QApplication>
#include <QPainter>

#include <gtest/gtest.h>

namespace aerolith {

namespace {

constexpr QSize size(600, 250);

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
    const QPoint onNoise(450, 200);

    const QImage full = painted({.showNoiseLevel = true, .lineWidth = 3, .areaOpacity = 0.5});
    EXPECT_EQ(full.pixelColor(450, 125), green);
    EXPECT_EQ(full.pixelColor(onNoise), red);
    EXPECT_EQ(full.pixelColor(300, 121), green);
    EXPECT_NE(full.pixelColor(450, 25), QColor(Qt::white));
    EXPECT_NE(full.copy(0, 60, 30, 60), full.copy(450, 60, 30, 60)) << "values along the left edge";

    const QImage compact =
        painted({.showMiniVersion = true, .showNoiseLevel = true, .lineWidth = 3, .areaOpacity = 0.5});
    EXPECT_EQ(compact.pixelColor(450, 125), green);
    EXPECT_NE(compact.pixelColor(onNoise), red);
    EXPECT_EQ(coloursOf(compact.copy(0, 0, size.width(), 123)).size(), 1) << "no dot, grid or values";
    EXPECT_NE(compact.pixelColor(450, 140), QColor(Qt::white));
    EXPECT_GT(compact.pixelColor(450, 248).red(), compact.pixelColor(450, 140).red()) << "an area that fades";
}

} // namespace aerolith
