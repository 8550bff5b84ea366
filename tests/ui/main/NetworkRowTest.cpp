#include "support/HostileNames.h"
#include "support/Printing.h"
#include "ui/Colours.h"
#include "ui/common/Theme.h"
#include "ui/main/NetworkRowLayout.h"
#include "ui/main/NetworkRowView.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <array>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr QRect rowRect(0, 60, 320, 48);

NetworkRowView row(const QString& ssid = u"Kitchen"_s)
{
    NetworkRowView row;
    row.network.ssid = ssid;
    row.network.rssi = -58;
    row.network.channel = 36;
    row.network.channelBand = u"5 GHz"_s;
    row.network.security = u"WPA2, Personal"_s;
    return row;
}

/// A row on white, with a row's height of white above and below it.
QImage painted(const NetworkRowView& view)
{
    QImage image(320, 168, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setLayoutDirection(Qt::LeftToRight);
    view.paint(painter, rowRect, QApplication::palette(), QApplication::font());
    return image;
}

bool isWhite(const QImage& image, const QRect& rect)
{
    return coloursOf(image.copy(rect)).keys() == QList<QRgb>{qRgb(255, 255, 255)};
}

} // namespace

TEST(NetworkRowLayout, NeverOverlapsHoweverLongTheNameOrNarrowTheRow)
{
    const NetworkRowMetrics longName{
        .nameWidth = 5000, .nameHeight = 17, .detailsHeight = 15, .signalWidth = 50};
    for (int width = 170; width <= 800; width += 7) {
        SCOPED_TRACE(width);
        const QRectF whole(0, 0, width, 48);
        const NetworkRowLayout placed = layOutNetworkRow(whole, longName, true);
        const NetworkRowLayout mirrored = placed.mirrored(whole);
        const std::array inReadingOrder{&NetworkRowLayout::bars, &NetworkRowLayout::name,
                                        &NetworkRowLayout::symbol, &NetworkRowLayout::signal};
        for (std::size_t i = 1; i < inReadingOrder.size(); ++i) {
            EXPECT_LT((placed.*inReadingOrder[i - 1]).right(), (placed.*inReadingOrder[i]).left());
            EXPECT_GT((mirrored.*inReadingOrder[i - 1]).left(), (mirrored.*inReadingOrder[i]).right());
        }
        EXPECT_LT(placed.name.right(), placed.checkmark->left());
        EXPECT_LT(placed.checkmark->right(), placed.symbol.left());
        EXPECT_LT(placed.details.right(), placed.symbol.left());
        EXPECT_LE(placed.signal.right(), width);
    }
    EXPECT_EQ(layOutNetworkRow({0, 0, 60, 48}, longName, false).name.width(), 0);
}

TEST(NetworkRowView, DescribesItselfInWords)
{
    NetworkRowView view = row(u"%1\n\u2069\u202Eeva"_s);
    view.network.rssi = -70;
    EXPECT_EQ(view.details(), u"WPA2 • Ch 36 (5 GHz)"_s);
    view.network.isCurrentNetwork = true;
    view.isHidden = true;
    EXPECT_EQ(
        view.accessibleText(),
        u"\u2068%1\uFFFD\uFFFD\uFFFDeva\u2069, WPA2, channel 36, 3 of 4 bars, -70 dBm, joined, hidden"_s);
}

TEST(NetworkRowView, MarksTheJoinedNetworkInGreenBesideItsLongName)
{
    const QRgb green = Theme::green(QApplication::palette()).rgb();
    NetworkRowView view = row(u"A long name that takes all the width there is"_s);
    EXPECT_FALSE(coloursOf(painted(view)).contains(green));
    view.network.isCurrentNetwork = true;
    EXPECT_TRUE(coloursOf(painted(view)).contains(green));
}

TEST(NetworkRowView, OrdersANameByItsOwnDirection)
{
    // A Hebrew letter first: what follows stands to the left of it.
    EXPECT_EQ(painted(row(u"\u05D0 b"_s)), painted(row(u"b \u05D0"_s)));
}

TEST(NetworkRowView, StaysWithinItsRowWhateverTheNameIs)
{
    const QImage harmless = painted(row(u"W"_s));
    for (const QString& ssid : hostileNames()) {
        SCOPED_TRACE(ssid.toStdString());
        const QImage image = painted(row(ssid));
        EXPECT_TRUE(isWhite(image, QRect(0, 0, 320, rowRect.top()))) << "above";
        EXPECT_TRUE(isWhite(image, QRect(0, rowRect.bottom() + 1, 320, 60))) << "below";
        const QRect right(240, rowRect.top(), 80, rowRect.height());
        EXPECT_EQ(image.copy(right), harmless.copy(right)) << "the lock and the signal";
        EXPECT_FALSE(isWhite(image, QRect(44, rowRect.top() + 6, 150, 17))) << "the name";
    }
}

} // namespace aerolith
