#include "ui/main/WavingBackground.h"

#include "ui/common/SecondaryLabel.h"
#include "ui/common/Symbols.h"
#include "ui/common/Theme.h"
#include "ui/main/BackdropMessage.h"
#include "ui/main/BackdropMotion.h"

#include <QPainter>
#include <QVBoxLayout>

#include <cmath>
#include <numbers>

namespace aerolith {

using namespace Qt::StringLiterals;
using namespace BackdropMotion;

namespace {

constexpr int antennaSize = 36;
constexpr int antennaSpacing = 24;
constexpr int messageSize = 14;
constexpr double ringOpacity = 0.4;
/// Between two pictures of the symbol its edge moves by a fifth of a pixel at most.
constexpr std::chrono::milliseconds symbolInterval{66};

QRectF centredSquare(const QPointF& centre, double side)
{
    return {centre.x() - side / 2, centre.y() - side / 2, side, side};
}

/// A square with a square hole, which covers what is between two circles.
QRegion squareRing(const QPointF& centre, double innerRadius, double outerRadius)
{
    const double hole = innerRadius * std::numbers::sqrt2 - 2;
    return QRegion(centredSquare(centre, 2 * outerRadius).toAlignedRect())
        .subtracted(centredSquare(centre, hole).toAlignedRect());
}

/// What the rings ever cover.
QRegion ringsRegion(const QPointF& centre)
{
    constexpr Seconds start{0};
    const auto radius = [](const Ring& ring, double lineShare) {
        return (ring.diameter + lineShare * ringLineWidth) * ring.scale / 2;
    };
    Ring innermost = ring(0, start);
    innermost.scale -= ringShrinkage;
    return squareRing(centre, radius(innermost, -1), radius(ring(ringCount - 1, start), 1) + 1);
}

/// How far a circle reaches to either side at this distance from its centre; nowhere beyond its radius.
double halfChord(double radius, double distance)
{
    return std::sqrt(std::max(0.0, radius * radius - distance * distance));
}

/// A circular line, as a gradient with edges one pixel soft: it takes Qt three times as long to stroke a
/// circle of this size.
void paintCircle(QPainter& painter, const QPointF& centre, double radius, double lineWidth,
                 const QColor& color)
{
    constexpr double softness = 0.5;
    const double inner = radius - lineWidth / 2;
    const double outer = radius + lineWidth / 2;
    const double reach = outer + softness;
    const QColor clear = Theme::withOpacity(color, 0);
    QRadialGradient line(centre, reach);
    line.setColorAt((inner - softness) / reach, clear);
    line.setColorAt((inner + softness) / reach, color);
    line.setColorAt((outer - softness) / reach, color);
    line.setColorAt(1, clear);
    const QBrush brush(line);
    // Only where the line is: with each pixel more, a gradient takes longer. Without
    // antialiasing the bands meet in no seam; the line's edges are soft by the gradient.
    constexpr double bandHeight = 8;
    for (double top = -reach; top < reach; top += bandHeight) {
        const double bottom = std::min(top + bandHeight, reach);
        const double nearest = top < 0 && bottom > 0 ? 0 : std::min(std::abs(top), std::abs(bottom));
        const double farthest = std::max(std::abs(top), std::abs(bottom));
        const double left = -halfChord(reach, nearest);
        const double hole = halfChord(inner - softness, farthest);
        painter.fillRect(QRectF(QPointF(left, top), QPointF(-hole, bottom)).translated(centre), brush);
        painter.fillRect(QRectF(QPointF(hole, top), QPointF(-left, bottom)).translated(centre), brush);
    }
}

} // namespace

WavingBackground::WavingBackground(WiFiScanner& scanner)
    : m_scanner(scanner)
    , m_message(new SecondaryLabel(messageSize))
    , m_publish([this] { showState(); })
    , m_clock(*this, [this] { repaintMoving(); })
{
    // With a ground of its own, nothing below it is painted for each frame.
    setAutoFillBackground(true);
    m_message->setObjectName(u"backdropMessage"_s);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setFont(Theme::font(m_message->font(), messageSize, QFont::Medium));

    auto* stack = new QVBoxLayout(this);
    stack->setSpacing(0);
    stack->addStretch();
    stack->addSpacing(antennaSize + antennaSpacing);
    stack->addWidget(m_message, 0, Qt::AlignHCenter);
    stack->addStretch();

    connect(&m_scanner, &WiFiScanner::locationAccessDeniedChanged, &m_publish, &OncePerTurn::request);
    connect(&m_scanner, &WiFiScanner::networksChanged, &m_publish, &OncePerTurn::request);
    showState();
}

void WavingBackground::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (m_showsRings) {
        paintRings(painter);
    }
    paintSymbol(painter);
}

void WavingBackground::showState()
{
    const bool listIsEmpty = m_scanner.networks().isEmpty();
    const BackdropMessage message = backdropMessage(m_scanner.locationAccessDenied(), listIsEmpty);
    if (message.symbol == m_symbol && listIsEmpty == m_showsRings) {
        return;
    }
    m_symbol = message.symbol;
    m_showsRings = listIsEmpty;
    m_clock.setInterval(listIsEmpty ? VisibleClock::smooth : symbolInterval);
    m_message->setText(message.text);
    update();
}

void WavingBackground::repaintMoving()
{
    const double reach = antennaSize * (largestSymbolScale - 1) / 2 + 1;
    QRegion moving(symbolFrame().adjusted(-reach, -reach, reach, reach).toAlignedRect());
    if (m_showsRings) {
        moving += ringsRegion(QRectF(rect()).center());
    }
    update(moving);
}

QRectF WavingBackground::symbolFrame() const
{
    const double top = m_message->geometry().top() - antennaSpacing - antennaSize;
    return {QRectF(rect()).center().x() - antennaSize / 2.0, top, antennaSize, antennaSize};
}

void WavingBackground::paintRings(QPainter& painter) const
{
    for (int i = 0; i < ringCount; ++i) {
        const Ring now = ring(i, m_clock.time());
        const QColor color = Theme::withOpacity(Theme::accent(palette()), ringOpacity * now.opacity);
        paintCircle(painter, QRectF(rect()).center(), now.diameter * now.scale / 2, ringLineWidth * now.scale,
                    color);
    }
}

void WavingBackground::paintSymbol(QPainter& painter) const
{
    const QRectF frame = symbolFrame();
    // Drawn at its largest and scaled down, so that it grows evenly.
    const auto largest = static_cast<int>(std::ceil(antennaSize * largestSymbolScale));
    const QPixmap symbol =
        Symbols::pixmap(m_symbol, largest, palette().color(QPalette::WindowText), devicePixelRatioF());
    const double side = antennaSize * symbolScale(m_clock.time());
    Symbols::mirrorIfPointing(painter, frame, m_symbol);
    painter.drawPixmap(centredSquare(frame.center(), side), symbol, symbol.rect());
}

} // namespace aerolith
