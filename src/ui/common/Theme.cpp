#include "ui/common/Theme.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace aerolith::Theme {

namespace {

/// Of secondary text over its background, where that leaves it readable.
constexpr double secondaryOpacity = 0.65;

/// As WCAG defines it for sRGB.
double relativeLuminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightnessF() < 0.5F;
}

QColor accent(const QPalette& palette)
{
    return palette.color(QPalette::Highlight);
}

QColor gray()
{
    return {142, 142, 147};
}

QColor green(const QPalette& palette)
{
    return isDark(palette) ? QColor(48, 209, 88) : QColor(52, 199, 89);
}

QColor blue(const QPalette& palette)
{
    return isDark(palette) ? QColor(10, 132, 255) : QColor(0, 122, 255);
}

QColor red(const QPalette& palette)
{
    return isDark(palette) ? QColor(255, 69, 58) : QColor(255, 59, 48);
}

QColor secondary(const QColor& text, const QColor& background)
{
    constexpr int steps = 7;
    for (int step = 0; step < steps; ++step) {
        const double opacity = secondaryOpacity + (1 - secondaryOpacity) * step / steps;
        const QColor color = blended(text, background, opacity);
        if (contrast(color, background) >= readableContrast) {
            return color;
        }
    }
    return text;
}

QColor withOpacity(QColor color, double opacity)
{
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

QColor blended(const QColor& color, const QColor& background, double opacity)
{
    const auto mix = [opacity](int over, int under) {
        return static_cast<int>(std::lround(over * opacity + under * (1 - opacity)));
    };
    return {mix(color.red(), background.red()), mix(color.green(), background.green()),
            mix(color.blue(), background.blue())};
}

double contrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(a), relativeLuminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

double textScale()
{
    // The desktops' defaults are 9 to 11 points: up to 14.7 of the 96 pixels of an inch.
    constexpr double largestUsual = 15;
    constexpr double pointsPerInch = 72;
    const QFont font = QGuiApplication::font();
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double dpi = screen != nullptr ? screen->logicalDotsPerInchY() : 96;
    const double pixels = font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * dpi / pointsPerInch;
    return std::max(1.0, pixels / largestUsual);
}

int scaledToText(int length)
{
    return static_cast<int>(std::lround(length * textScale()));
}

QSize scaledToText(const QSize& size)
{
    return {scaledToText(size.width()), scaledToText(size.height())};
}

QFont font(const QFont& base, int pixelSize, QFont::Weight weight)
{
    QFont sized = base;
    sized.setPixelSize(scaledToText(pixelSize));
    sized.setWeight(weight);
    return sized;
}

QFont font(const QFont& base, TextStyle style)
{
    switch (style) {
    case TextStyle::headline:
        return font(base, 13, QFont::DemiBold);
    case TextStyle::body:
        break;
    case TextStyle::subheadline:
        return font(base, 12);
    case TextStyle::caption:
        return font(base, 11);
    case TextStyle::caption2:
        return font(base, 10);
    }
    return font(base, 13);
}

} // namespace aerolith::Theme
