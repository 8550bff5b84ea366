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

constexpr int symbolSize = 36;
constexpr int spacing = 24;
constexpr int messageSize = 14;
constexpr double ringOpacity = 0.4;

QRectF centredSquare(const QPointF& centre, double side)
{
    return {centre.x() - side / 2, centre.y() - side / 2, side, side};
}

/// What the rings ever cover: a square with a square hole.
QRegion ringsRegion(const QPointF& centre)
{
    constexpr Seconds start{0};
    const auto edge = [](const Ring& ring, double lineShare) {
        return (ring.diameter + lineShare * ringLineWidth) * ring.scale;
    };
    const Ring outermost = ring(ringCount - 1, start);
    Ring innermost = ring(0, start);
    innermost.scale -= ringShrinkage;
    const double hole = edge(innermost, -1) / std::numbers::sqrt2;
    return QRegion(centredSquare(centre, edge(outermost, 1)).toAlignedRect())
        .subtracted(centredSquare(centre, hole - 2).toAlignedRect());
}

} // namespace

WavingBackground::WavingBackground(WiFiScanner& scanner)
    : m_scanner(scanner)
    , m_message(new SecondaryLabel(messageSize))
    , m_publish([this] { showState(); })
    , m_clock(*this, [this] { repaintMoving(); })
{
    setObjectName(u"wavingBackground"_s);
    m_message->setObjectName(u"backdropMessage"_s);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setFont(Theme::font(m_message->font(), messageSize, QFont::Medium));

    auto* stack = new QVBoxLayout(this);
    stack->setSpacing(0);
    stack->addStretch();
    stack->addSpacing(symbolSize + spacing);
    stack->addWidget(m_message, 0, Qt::AlignHCenter);
    stack->addStretch();

    connect(&m_scanner, &WiFiScanner::locationAccessDeniedChanged, &m_publish, &OncePerTurn::request);
    connect(&m_scanner, &WiFiScanner::networksChanged, &m_publish, &OncePerTurn::request);
    showState();
}

void WavingBackground::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
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
    m_message->setText(message.text);
    update();
}

void WavingBackground::repaintMoving()
{
    const double reach = symbolSize * (largestSymbolScale - 1) / 2 + 1;
    QRegion moving(symbolFrame().adjusted(-reach, -reach, reach, reach).toAlignedRect());
    if (m_showsRings) {
        moving += ringsRegion(QRectF(rect()).center());
    }
    update(moving);
}

QRectF WavingBackground::symbolFrame() const
{
    const double top = m_message->geometry().top() - spacing - symbolSize;
    return {QRectF(rect()).center().x() - symbolSize / 2.0, top, symbolSize, symbolSize};
}

void WavingBackground::paintRings(QPainter& painter) const
{
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < ringCount; ++i) {
        const Ring now = ring(i, m_clock.time());
        const QColor color = Theme::withOpacity(Theme::accent(palette()), ringOpacity * now.opacity);
        painter.setPen(QPen(color, ringLineWidth * now.scale));
        painter.drawEllipse(centredSquare(QRectF(rect()).center(), now.diameter * now.scale));
    }
}

void WavingBackground::paintSymbol(QPainter& painter) const
{
    const QRectF frame = symbolFrame();
    // Drawn at its largest and scaled down, so that it grows evenly.
    const auto largest = static_cast<int>(std::ceil(symbolSize * largestSymbolScale));
    const QPixmap symbol =
        Symbols::pixmap(m_symbol, largest, palette().color(QPalette::WindowText), devicePixelRatioF());
    const double side = symbolSize * symbolScale(m_clock.time());
    painter.drawPixmap(centredSquare(frame.center(), side), symbol, symbol.rect());
}

} // namespace aerolith
