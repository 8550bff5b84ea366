#include "ui/main/WavingBackground.h"

#include "ui/common/Rectangles.h"
#include "ui/common/SecondaryLabel.h"
#include "ui/common/Symbols.h"
#include "ui/common/Theme.h"
#include "ui/main/BackdropMessage.h"
#include "ui/main/BackdropMotion.h"
#include "ui/main/CircleLine.h"

#include <QEvent>
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

/// A square with a square hole, which covers what is between two circles.
QRegion squareRing(const QPointF& centre, double innerRadius, double outerRadius)
{
    const double hole = innerRadius * std::numbers::sqrt2 - 2;
    const double side = 2 * outerRadius;
    return QRegion(centredOn(centre, {side, side}).toAlignedRect())
        .subtracted(centredOn(centre, {hole, hole}).toAlignedRect());
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
    m_message->installEventFilter(this);

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

/// The symbol stands over the message, and goes with it.
bool WavingBackground::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_message && event->type() == QEvent::Move) {
        update();
    }
    return QWidget::eventFilter(watched, event);
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
    painter.drawPixmap(centredOn(frame.center(), {side, side}), symbol, symbol.rect());
}

} // namespace aerolith
