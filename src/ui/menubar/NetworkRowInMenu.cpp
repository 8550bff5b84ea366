#include "ui/menubar/NetworkRowInMenu.h"

#include "ui/common/Divider.h"
#include "ui/common/FocusRing.h"
#include "ui/common/NetworkTexts.h"
#include "ui/common/PlainText.h"
#include "ui/common/RowText.h"
#include "ui/common/Symbols.h"
#include "ui/common/Theme.h"
#include "ui/common/WiFiSignalBars.h"
#include "ui/detail/SignalChartLayers.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

#include <cmath>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

struct NetworkRowInMenuTexts
{
    Q_DECLARE_TR_FUNCTIONS(NetworkRowInMenu)
};

constexpr double joinedOpacity = 0.1;
constexpr double hoveredOpacity = 0.05;
constexpr QMarginsF focusDistance{2, 2, 2, 2};

QString connectText()
{
    return NetworkRowInMenuTexts::tr("Connect");
}

QFont nameFont(const QFont& base)
{
    return Theme::font(base, 13);
}

QFont connectFont(const QFont& base)
{
    return Theme::font(base, 12);
}

MenuRowMetrics measure(const QFont& base)
{
    const QFontMetricsF connect(connectFont(base));
    return {.nameHeight = std::ceil(QFontMetricsF(nameFont(base)).height()),
            .connectWidth = std::ceil(connect.horizontalAdvance(connectText())),
            .connectHeight = std::ceil(connect.height())};
}

} // namespace

QString NetworkRowInMenu::accessibleText() const
{
    const QString name = isolated(singleLine(network.ssid));
    if (network.isCurrentNetwork) {
        return NetworkRowInMenuTexts::tr("%1, joined").arg(name);
    }
    //: %1 is a network, %2 its security.
    return NetworkRowInMenuTexts::tr("Connect to %1, %2").arg(name, securityText(network));
}

int NetworkRowInMenu::height(const QFont& font, bool isJoined)
{
    return static_cast<int>(std::ceil(menuRowHeight(measure(font), isJoined)));
}

MenuRowLayout NetworkRowInMenu::layout(const QRectF& rect, const QFont& font,
                                       Qt::LayoutDirection direction) const
{
    const MenuRowLayout layout = layOutMenuRow(rect, measure(font), network.isCurrentNetwork);
    return direction == Qt::RightToLeft ? layout.mirrored() : layout;
}

void NetworkRowInMenu::paint(QPainter& painter, const QRectF& rect, const QPalette& palette,
                             const QFont& font) const
{
    const bool isMirrored = painter.layoutDirection() == Qt::RightToLeft;
    const MenuRowLayout places = layout(rect, font, painter.layoutDirection());

    painter.save();
    // A name can stack marks higher than a line.
    painter.setClipRect(rect);
    paintBackground(painter, places.row, palette);
    WiFiSignalBars{.rssi = network.rssi}.paint(painter, places.bars, palette);

    painter.setPen(palette.color(QPalette::WindowText));
    drawRowText(painter, places.name, singleLine(network.ssid), nameFont(font), isMirrored);

    painter.setFont(connectFont(font));
    paintButton(painter, places, palette);
    if (places.chart) {
        paintChart(painter, *places.chart, palette, font);
    }
    if (places.divider) {
        Divider::paint(painter, places.divider->toRect());
    }
    painter.restore();
}

void NetworkRowInMenu::paintBackground(QPainter& painter, const QRectF& rect, const QPalette& palette) const
{
    if (network.isCurrentNetwork) {
        painter.fillRect(rect, Theme::withOpacity(Theme::blue(palette), joinedOpacity));
    } else if (isHovering) {
        const QColor secondary =
            Theme::secondary(palette.color(QPalette::WindowText), palette.color(QPalette::Window));
        painter.fillRect(rect, Theme::withOpacity(secondary, hoveredOpacity));
    }
    if (isFocused) {
        paintFocusRing(painter, rect.marginsRemoved(focusDistance).toRect(), palette);
    }
}

void NetworkRowInMenu::paintButton(QPainter& painter, const MenuRowLayout& layout,
                                   const QPalette& palette) const
{
    if (!layout.connect) {
        Symbols::paint(painter, layout.symbol, u"checkmark.circle.fill"_s, Theme::green(palette));
        return;
    }
    const QColor text = palette.color(QPalette::WindowText);
    const QColor window = palette.color(QPalette::Window);
    const QColor tinted = Theme::blended(Theme::secondary(text, window), window, hoveredOpacity);
    const QColor secondary = Theme::secondary(text, isHovering ? tinted : window);
    if (isHovering || isFocused) {
        painter.setPen(secondary);
        painter.drawText(*layout.connect, Qt::AlignCenter | Qt::TextSingleLine, connectText());
    }
    Symbols::paint(painter, layout.symbol, network.securityInfo().second, secondary);
}

void NetworkRowInMenu::paintChart(QPainter& painter, const QRectF& rect, const QPalette& palette,
                                  const QFont& font) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    // Time runs from left to right in every language.
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.translate(rect.topLeft());
    SignalChartLayers{.parameters = {.showMiniVersion = true, .lineWidth = 1, .areaOpacity = 0.2},
                      .history = network.signalHistory,
                      .size = rect.size(),
                      .palette = palette,
                      .font = font,
                      .label = palette.color(QPalette::WindowText)}
        .paint(painter, 1, {});
    painter.restore();
}

} // namespace aerolith
