#include "ui/main/NetworkRowView.h"

#include "support/HostileNames.h"
#include "support/Printing.h"
#include "ui/common/Theme.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>

#include <gtest/gtest.h>

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
    const QImage part = image.copy(rect);
    QImage white = part;
    white.fill(Qt::white);
    return part == white;
}

} // namespace

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
    EXPECT_EQ(open.name(), u"%1 %2 &Guests"_s);
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
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixelColor(x, y) == Theme::green(QApplication::palette())) {
                    return true;
                }
            }
        }
        return false;
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
    EXPECT_NE(painted(row(u"\u05D0 b"_s)), painted(row(u"\u05D0 c"_s)));
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
