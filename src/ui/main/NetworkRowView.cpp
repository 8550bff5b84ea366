#include "ui/main/NetworkRowView.h"

#include "ui/common/PlainText.h"
#include "ui/common/Symbols.h"
#include "ui/common/Theme.h"
#include "ui/common/WiFiSignalBars.h"
#include "ui/main/NetworkRowLayout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

#include <cmath>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr double hiddenOpacity = 0.5;

struct Fonts
{
    explicit Fonts(const QFont& base)
        : name(Theme::font(base, 14, QFont::Medium))
        , details(Theme::font(base, 12))
        , signal(Theme::font(base, 12, QFont::Medium))
    {
    }

    QFont name;
    QFont details;
    QFont signal;
};

NetworkRowMetrics measure(const Fonts& fonts, const QString& name, const QString& signal)
{
    const QFontMetricsF nameMetrics(fonts.name);
    return {.nameWidth = std::ceil(nameMetrics.horizontalAdvance(name)),
            .nameHeight = std::ceil(nameMetrics.height()),
            .detailsHeight = std::ceil(QFontMetricsF(fonts.details).height()),
            .signalWidth = std::ceil(QFontMetricsF(fonts.signal).horizontalAdvance(signal))};
}

/// Begins at the row's leading side; the text's own direction orders its characters.
void drawText(QPainter& painter, const QRectF& rect, const QString& text, const QFont& font, bool isMirrored)
{
    const QFontMetricsF metrics(font);
    const QString shown = metrics.elidedText(text, Qt::ElideRight, rect.width());
    const double left = isMirrored ? rect.right() - metrics.horizontalAdvance(shown) : rect.left();
    painter.setFont(font);
    painter.drawText(QPointF(left, std::round(rect.top() + metrics.ascent())), shown);
}

} // namespace

QString NetworkRowView::name() const
{
    return singleLine(network.ssid);
}

QString NetworkRowView::details() const
{
    return u"%1 \u2022 Ch %2 (%3)"_s.arg(network.securityInfo().first, QString::number(network.channel),
                                         network.channelBand);
}

QString NetworkRowView::signal() const
{
    return QString::number(network.rssi) + " dBm"_L1;
}

QString NetworkRowView::symbol() const
{
    return network.securityInfo().second;
}

double NetworkRowView::opacity() const
{
    return isHidden ? hiddenOpacity : 1;
}

QString NetworkRowView::accessibleText() const
{
    const WiFiSignalBars bars{.rssi = network.rssi};
    QStringList parts{isolated(name()), network.securityInfo().first, u"channel %1"_s.arg(network.channel),
                      u"%1 of %2 bars"_s.arg(bars.litCount()).arg(bars.barCount), signal()};
    if (network.isCurrentNetwork) {
        parts.append(u"joined"_s);
    }
    if (isHidden) {
        parts.append(u"hidden"_s);
    }
    return parts.join(u", "_s);
}

int NetworkRowView::height(const QFont& font)
{
    return static_cast<int>(std::ceil(networkRowHeight(measure(Fonts(font), {}, {}))));
}

void NetworkRowView::paint(QPainter& painter, const QRectF& rect, const QPalette& palette,
                           const QFont& font) const
{
    const QColor background = palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
    const QColor label = palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor secondary = Theme::secondary(label, background);

    const Fonts fonts(font);
    NetworkRowLayout layout =
        layOutNetworkRow(rect, measure(fonts, name(), signal()), network.isCurrentNetwork);
    const bool isMirrored = painter.layoutDirection() == Qt::RightToLeft;
    if (isMirrored) {
        layout = layout.mirrored(rect);
    }

    painter.save();
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    // A name can stack marks higher than a line.
    painter.setClipRect(rect);
    painter.setOpacity(opacity());
    WiFiSignalBars{.rssi = network.rssi, .isSelected = isSelected}.paint(painter, layout.bars, palette);
    painter.setPen(label);
    drawText(painter, layout.name, name(), fonts.name, isMirrored);
    if (layout.checkmark) {
        Symbols::paint(painter, *layout.checkmark, u"checkmark.circle.fill"_s, Theme::green(palette));
    }
    painter.setPen(secondary);
    drawText(painter, layout.details, details(), fonts.details, isMirrored);
    drawText(painter, layout.signal, signal(), fonts.signal, isMirrored);
    Symbols::paint(painter, layout.symbol, symbol(), secondary);
    painter.restore();
}

} // namespace aerolith
