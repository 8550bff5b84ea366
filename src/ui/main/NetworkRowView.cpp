#include "ui/main/NetworkRowView.h"

#include "ui/common/NetworkTexts.h"
#include "ui/common/PlainText.h"
#include "ui/common/RowText.h"
#include "ui/common/Symbols.h"
#include "ui/common/Theme.h"
#include "ui/common/WiFiSignalBars.h"
#include "ui/main/NetworkRowLayout.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

#include <cmath>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

struct NetworkRowViewTexts
{
    Q_DECLARE_TR_FUNCTIONS(NetworkRowView)
};

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

} // namespace

QString NetworkRowView::name() const
{
    return singleLine(network.ssid);
}

QString NetworkRowView::details() const
{
    //: The second line of a row: its security, its channel's number and its band, as in "WPA2 \u2022 Ch 36 (5
    //: GHz)".
    return NetworkRowViewTexts::tr("%1 \u2022 Ch %2 (%3)")
        .arg(securityText(network), QString::number(network.channel), bandText(network));
}

QString NetworkRowView::signal() const
{
    return NetworkRowViewTexts::tr("%1 dBm").arg(network.rssi);
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
    QStringList parts{
        isolated(name()), securityText(network), NetworkRowViewTexts::tr("channel %1").arg(network.channel),
        NetworkRowViewTexts::tr("%1 of %2 bars").arg(bars.litCount()).arg(bars.barCount), signal()};
    if (network.isCurrentNetwork) {
        parts.append(NetworkRowViewTexts::tr("joined"));
    }
    if (isHidden) {
        parts.append(NetworkRowViewTexts::tr("hidden"));
    }
    return parts.join(listSeparator());
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
    // A name can stack marks higher than a line.
    painter.setClipRect(rect);
    painter.setOpacity(opacity());
    WiFiSignalBars{.rssi = network.rssi, .isSelected = isSelected}.paint(painter, layout.bars, palette);
    painter.setPen(label);
    drawRowText(painter, layout.name, name(), fonts.name, isMirrored);
    if (layout.checkmark) {
        Symbols::paint(painter, *layout.checkmark, u"checkmark.circle.fill"_s, Theme::green(palette));
    }
    painter.setPen(secondary);
    drawRowText(painter, layout.details, details(), fonts.details, isMirrored);
    drawRowText(painter, layout.signal, signal(), fonts.signal, isMirrored);
    Symbols::paint(painter, layout.symbol, symbol(), secondary);
    painter.restore();
}

} // namespace aerolith
