#include "ui/common/Spinner.h"

#include "ui/common/Theme.h"

#include <QPainter>
#include <QStyle>
#include <QTimerEvent>

namespace aerolith {

namespace {

constexpr int side = 14;
constexpr int spokes = 8;
constexpr int millisecondsPerTurn = 1000;
constexpr double innerRadius = 3;
constexpr double outerRadius = 5.75;
constexpr double thickness = 1.5;
constexpr double faintest = 0.15;

} // namespace

Spinner::Spinner(QWidget* parent) : QWidget(parent)
{
    setFixedSize(side, side);
}

void Spinner::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0) {
        m_timer.start(millisecondsPerTurn / spokes, this);
    }
}

void Spinner::hideEvent(QHideEvent* event)
{
    m_timer.stop();
    QWidget::hideEvent(event);
}

void Spinner::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_head = (m_head + 1) % spokes;
    update();
}

void Spinner::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.rotate(360.0 * m_head / spokes);
    const QColor color = palette().color(foregroundRole());
    for (int behind = 0; behind < spokes; ++behind) {
        const double opacity = faintest + (1 - faintest) * (spokes - 1 - behind) / (spokes - 1);
        painter.setPen(QPen(Theme::withOpacity(color, opacity), thickness, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -innerRadius), QPointF(0, -outerRadius));
        painter.rotate(-360.0 / spokes);
    }
}

} // namespace aerolith
