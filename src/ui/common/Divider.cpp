#include "ui/common/Divider.h"

#include "ui/common/Theme.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace aerolith {

namespace {

constexpr int thickness = 1;
constexpr double opacity = 0.3;

} // namespace

Divider::Divider(Qt::Orientation orientation, QWidget* parent) : QWidget(parent)
{
    if (orientation == Qt::Horizontal) {
        setFixedHeight(thickness);
    } else {
        setFixedWidth(thickness);
    }
}

void Divider::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paint(painter, rect());
}

void Divider::paint(QPainter& painter, const QRect& rect)
{
    // In whole pixels of the device: at a fractional scale one divider would be thicker than the next.
    const QTransform toDevice = painter.deviceTransform();
    const QRectF onDevice = toDevice.mapRect(QRectF(rect));
    const QRectF sharp(std::round(onDevice.left()), std::round(onDevice.top()),
                       std::max(1.0, std::round(onDevice.width())),
                       std::max(1.0, std::round(onDevice.height())));
    painter.fillRect(toDevice.inverted().mapRect(sharp), Theme::withOpacity(Theme::gray(), opacity));
}

} // namespace aerolith
