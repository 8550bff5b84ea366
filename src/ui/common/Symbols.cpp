#include "ui/common/Symbols.h"

#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <cmath>

namespace aerolith::Symbols {

using namespace Qt::StringLiterals;

namespace {

QString fileOf(const QString& name)
{
    return u":/aerolith/symbols/%1.svg"_s.arg(name);
}

QPixmap draw(const QString& name, int size, const QColor& color, qreal devicePixelRatio)
{
    QSvgRenderer svg(fileOf(name));
    if (!svg.isValid()) {
        return {};
    }
    const int pixels = static_cast<int>(std::ceil(size * devicePixelRatio));
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    svg.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

} // namespace

QPixmap pixmap(const QString& name, int size, const QColor& color, qreal devicePixelRatio)
{
    const QString key =
        u"aerolith/%1/%2/%3/%4"_s.arg(name).arg(size).arg(color.rgba(), 0, 16).arg(devicePixelRatio);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = draw(name, size, color, devicePixelRatio);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

void mirrorIfPointing(QPainter& painter, const QRectF& frame, const QString& name)
{
    const bool points = name == "chevron.left"_L1 || name == "sidebar.left"_L1;
    if (points && painter.layoutDirection() == Qt::RightToLeft) {
        painter.translate(2 * frame.center().x(), 0);
        painter.scale(-1, 1);
    }
}

void paint(QPainter& painter, const QRectF& frame, const QString& name, const QColor& color)
{
    const int size = static_cast<int>(frame.height());
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QPointF corner = frame.center() - QPointF(size, size) / 2;
    // On whole pixels of the device, or it would be resampled.
    const QPointF aligned(std::round(corner.x() * ratio) / ratio, std::round(corner.y() * ratio) / ratio);
    painter.save();
    mirrorIfPointing(painter, QRectF(aligned, QSizeF(size, size)), name);
    painter.drawPixmap(aligned, pixmap(name, size, color, ratio));
    painter.restore();
}

} // namespace aerolith::Symbols
