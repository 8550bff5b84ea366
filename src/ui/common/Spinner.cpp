#include "ui/common/Spinner.h"

#include "ui/common/AccessibleRole.h"
#include "ui/common/Theme.h"

#include <QPainter>

#include <cmath>

namespace aerolith {

namespace {

constexpr int side = 14;
constexpr int spokes = 8;
constexpr std::chrono::milliseconds stepInterval{125};
constexpr double innerRadius = 3;
constexpr double outerRadius = 5.75;
constexpr double spokeThickness = 1.5;
constexpr double faintest = 0.15;

} // namespace

Spinner::Spinner(QWidget* parent)
    : QWidget(parent)
    , m_clock(
          *this, [this] { update(); }, stepInterval)
{
    setFixedSize(side, side);
    setAccessibleRole(*this, QAccessible::Animation);
}

void Spinner::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.rotate(std::floor(m_clock.time() / stepInterval) * 360 / spokes);
    const QColor color = palette().color(foregroundRole());
    for (int behind = 0; behind < spokes; ++behind) {
        const double opacity = faintest + (1 - faintest) * (spokes - 1 - behind) / (spokes - 1);
        painter.setPen(QPen(Theme::withOpacity(color, opacity), spokeThickness, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -innerRadius), QPointF(0, -outerRadius));
        painter.rotate(-360.0 / spokes);
    }
}

} // namespace aerolith
