#include "ui/detail/HoverableDot.h"

#include "ui/common/Rectangles.h"
#include "ui/common/Theme.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace aerolith {

namespace {

struct HoverableDotTexts
{
    Q_DECLARE_TR_FUNCTIONS(HoverableDot)
};

constexpr double dotRadius = 3;
constexpr double hoveredRadius = 2 * dotRadius;
constexpr double boxDistance = 50;
constexpr double boxPadding = 6;
constexpr double boxRadius = 4;
constexpr double boxOpacity = 0.8;
constexpr double lineSpacing = 8;

} // namespace

QRectF HoverableDot::target() const
{
    const double side = 2 * (isHovered ? hoveredRadius : dotRadius);
    return centredOn(position, {side, side});
}

QStringList HoverableDot::readOut() const
{
    return {HoverableDotTexts::tr("RSSI: %1 dBm").arg(data.rssi),
            HoverableDotTexts::tr("Noise: %1 dBm").arg(data.noise)};
}

QRectF HoverableDot::readOutBox(const QFont& font) const
{
    const QFontMetricsF metrics(Theme::font(font, TextStyle::caption));
    const QStringList lines = readOut();
    const double width = std::max(metrics.horizontalAdvance(lines[0]), metrics.horizontalAdvance(lines[1]));
    const double height = 2 * metrics.height() + lineSpacing;
    const double distance = boxDistance * Theme::textScale();
    const bool isNearRightEdge = position.x() > totalWidth - 2 * distance;
    return centredOn(position + QPointF(isNearRightEdge ? -distance : distance, 0),
                     {width + 2 * boxPadding, height + 2 * boxPadding});
}

QRectF HoverableDot::extent(const QFont& font) const
{
    return centredOn(position, {2 * hoveredRadius, 2 * hoveredRadius}).united(readOutBox(font));
}

void HoverableDot::paint(QPainter& painter, const QPalette& palette, const QFont& font) const
{
    const double radius = std::lerp(dotRadius, hoveredRadius, growth);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::green(palette));
    painter.drawEllipse(position, radius, radius);
    if (growth > 0) {
        paintReadOut(painter, font);
    }
}

void HoverableDot::paintReadOut(QPainter& painter, const QFont& font) const
{
    const QRectF box = readOutBox(font);
    const QRectF text = box.adjusted(0, boxPadding, 0, -boxPadding);
    const QStringList lines = readOut();
    painter.save();
    painter.setOpacity(growth);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::withOpacity(Qt::black, boxOpacity));
    painter.drawRoundedRect(box, boxRadius, boxRadius);
    painter.setPen(Qt::white);
    painter.setFont(Theme::font(font, TextStyle::caption));
    painter.drawText(text, Qt::AlignHCenter | Qt::AlignTop, lines[0]);
    painter.drawText(text, Qt::AlignHCenter | Qt::AlignBottom, lines[1]);
    painter.restore();
}

} // namespace aerolith
