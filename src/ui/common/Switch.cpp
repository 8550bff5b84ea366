#include "ui/common/Switch.h"

#include "ui/common/FocusRing.h"
#include "ui/common/Theme.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace aerolith {

namespace {

constexpr QSizeF trackSize{26, 15};
constexpr double knobMargin = 1.5;
constexpr double offOpacity = 0.45;
constexpr int spacing = 8;

} // namespace

Switch::Switch(QWidget* parent) : QCheckBox(parent)
{
    setFont(Theme::font(font(), 12));
    setFocusPolicy(Qt::TabFocus);
}

QSize Switch::sizeHint() const
{
    const QSize title = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {2 * margin + title.width() + spacing + static_cast<int>(trackSize.width()),
            2 * margin + std::max(title.height(), static_cast<int>(trackSize.height()))};
}

QRectF Switch::track() const
{
    const QRectF inside = QRectF(rect()).adjusted(margin, 0, -margin, 0);
    const double left =
        layoutDirection() == Qt::RightToLeft ? inside.left() : inside.right() - trackSize.width();
    return {QPointF(left, std::round(inside.center().y() - trackSize.height() / 2)), trackSize};
}

void Switch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect title = QStyle::visualRect(
        layoutDirection(), rect(),
        rect().adjusted(margin, 0, -margin - spacing - static_cast<int>(trackSize.width()), 0));
    painter.setFont(font());
    style()->drawItemText(&painter, title, Qt::AlignVCenter | Qt::AlignTrailing | Qt::TextShowMnemonic,
                          palette(), isEnabled(), text(), foregroundRole());

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF bar = track();
    painter.setBrush(isChecked() ? Theme::accent(palette()) : Theme::withOpacity(Theme::gray(), offOpacity));
    painter.drawRoundedRect(bar, bar.height() / 2, bar.height() / 2);

    const double diameter = bar.height() - 2 * knobMargin;
    const bool isRight = isChecked() != (layoutDirection() == Qt::RightToLeft);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QRectF(isRight ? bar.right() - knobMargin - diameter : bar.left() + knobMargin,
                               bar.top() + knobMargin, diameter, diameter));

    if (hasFocus()) {
        paintFocusRing(painter, rect(), palette());
    }
}

} // namespace aerolith
