#include "ui/common/SecondaryLabel.h"

#include <QPainter>

namespace aerolith {

SecondaryLabel::SecondaryLabel(int pixelSize, QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setFont(Theme::font(font(), pixelSize));
}

SecondaryLabel::SecondaryLabel(TextStyle style, QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setFont(Theme::font(font(), style));
}

void SecondaryLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(Theme::secondary(palette().color(foregroundRole()), palette().color(backgroundRole())));
    const int wrap = wordWrap() ? Qt::TextWordWrap : 0;
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | wrap, text());
}

} // namespace aerolith
