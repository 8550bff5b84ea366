#include "ui/common/Divider.h"

#include "ui/common/Theme.h"

#include <QPainter>

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
    painter.fillRect(rect, Theme::withOpacity(Theme::gray(), opacity));
}

} // namespace aerolith
