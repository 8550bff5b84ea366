#include "support/HostileNames.h"
#include "support/Printing.h"
#include "ui/Colours.h"
#include "ui/common/Theme.h"
#include "ui/main/NetworkRowLayout.h"
#include "ui/main/NetworkRowView.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr NetworkRowMetrics metrics{
    .nameWidth = 80, .nameHeight = 17, .detailsHeight = 15, .signalWidth = 50};

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

TEST(NetworkRowLayout, PlacesTheElementsOfAWideRowInEitherDirection)
{
    EXPECT_EQ(networkRowHeight(metrics), 6 + 17 + 4 + 15 + 6);

    const QRectF row(100, 200, 320, 48);
    const NetworkRowLayout layout = layOutNetworkRow(row, metrics, true);
    EXPECT_EQ(layout.bars, QRectF(112, 216.5, 20, 15));
    EXPECT_EQ(layout.name, QRectF(144, 206, 80, 17));
    EXPECT_EQ(layout.checkmark, QRectF(230, 208.5, 12, 12));
    EXPECT_EQ(layout.details.topLeft(), QPointF(144, 227));
    EXPECT_EQ(layout.details.bottom(), row.bottom() - 6);
    EXPECT_EQ(layout.signal, QRectF(358, 216.5, 50, 15));
    EXPECT_EQ(layout.symbol, QRectF(334, 218, 12, 12));
    EXPECT_FALSE(layOutNetworkRow(row, metrics, false).checkmark.has_value());

    const NetworkRowLayout mirrored = layout.mirrored(row);
    EXPECT_EQ(mirrored.bars.right(), row.right() - 12);
    EXPECT_EQ(mirrored.signal.left(), row.left() + 12);
    EXPECT_LT(mirrored.checkmark->right(), mirrored.name.left());
    EXPECT_EQ(mirrored.mirrored(row).symbol, layout.symbol);
}

TEST(NetworkRowLayout, NeverOverlapsHoweverLongTheNameOrNarrowTheRow)
{
    for (const bool isJoined : {false, true}) {
        for (int width = 170; width <= 800; width += 7) {
            SCOPED_TRACE(width);
            NetworkRowMetrics longName = metrics;
            longName.nameWidth = 5000;
            const NetworkRowLayout layout = layOutNetworkRow(QRectF(0, 0, width, 48), longName, isJoined);
            QList<QRectF> placed{layout.bars, layout.name};
            if (layout.checkmark) {
                placed.append(*layout.checkmark);
            }
            placed << layout.symbol << layout.signal;
            for (qsizetype i = 1; i < placed.size(); ++i) {
                EXPECT_LT(placed[i - 1].right(), placed[i].left());
            }
            EXPECT_LT(layout.details.right(), layout.symbol.left());
            EXPECT_LE(layout.signal.right(), width);
        }
    }
    EXPECT_EQ(layOutNetworkRow(QRectF(0, 0, 60, 48), metrics, false).name.width(), 0);
}

TEST(NetworkRowView, SaysWhatTheRecordHolds)
{
    EXPECT_EQ(row().name(), u"Kitchen"_s);
    EXPECT_EQ(row().details(), u"WPA2 • Ch 36 (5 GHz)"_s);
    EXPECT_EQ(row().signal(), u"-58 dBm"_s);
    EXPECT_EQ(row().symbol(), u"lock"_s);

    NetworkRowView open = row(u"%1 %2 &Guests"_s);
    open.network.security = u"None"_s;
    open.network.channel = 0;
    open.network.channelBand = u"Unknown"_s;
    EXPECT_EQ(open.name(), open.network.ssid);
    EXPECT_EQ(open.details(), u"Open • Ch 0 (Unknown)"_s);
    EXPECT_EQ(open.symbol(), u"lock.open"_s);
}

TEST(NetworkRowView, DescribesItselfInWords)
{
    NetworkRowView view = row();
    view.network.rssi = -70;
    EXPECT_EQ(view.accessibleText(), u"\u2068Kitchen\u2069, WPA2, channel 36, 3 of 4 bars, -70 dBm"_s);
    view.network.isCurrentNetwork = true;
    view.isHidden = true;
    view.network.ssid = u"%1\n\u2069\u202Eeva"_s;
    EXPECT_EQ(
        view.accessibleText(),
        u"\u2068%1\uFFFD\uFFFD\uFFFDeva\u2069, WPA2, channel 36, 3 of 4 bars, -70 dBm, joined, hidden"_s);
}

TEST(NetworkRowView, IsPaintedAtHalfOpacityWhenHidden)
{
    const QPoint onFirstBar(rowRect.left() + 14, rowRect.center().y());
    NetworkRowView view = row();
    const QColor accent = Theme::accent(QApplication::palette());
    EXPECT_EQ(painted(view).pixelColor(onFirstBar), accent);
    view.isHidden = true;
    const QColor half = painted(view).pixelColor(onFirstBar);
    EXPECT_NEAR(half.red(), Theme::blended(accent, Qt::white, 0.5).red(), 1);
    EXPECT_NEAR(half.blue(), Theme::blended(accent, Qt::white, 0.5).blue(), 1);
}

TEST(NetworkRowView, MarksTheJoinedNetworkInGreen)
{
    const auto hasGreen = [](const QImage& image) {
        return coloursOf(image).contains(Theme::green(QApplication::palette()).rgb());
    };
    NetworkRowView view = row(u"A long name that takes all the width there is"_s);
    EXPECT_FALSE(hasGreen(painted(view)));
    view.network.isCurrentNetwork = true;
    EXPECT_TRUE(hasGreen(painted(view)));
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
