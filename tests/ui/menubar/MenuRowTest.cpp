#include "support/HostileNames.h"
#include "support/Printing.h"
#include "ui/Colours.h"
#include "ui/common/Theme.h"
#include "ui/detail/SampleHistory.h"
#include "ui/menubar/NetworkRowInMenu.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

NetworkRowInMenu row(const QString& ssid = u"Cafe"_s)
{
    NetworkRowInMenu row;
    row.network.ssid = ssid;
    row.network.rssi = -60;
    row.network.security = u"WPA2 Personal"_s;
    return row;
}

NetworkRowInMenu joinedRow()
{
    NetworkRowInMenu joined = row();
    joined.network.isCurrentNetwork = true;
    joined.network.signalHistory = history({-70, -50, -60});
    return joined;
}

QImage picture(const NetworkRowInMenu& row, const QColor& background = Qt::white, int margin = 0)
{
    const QFont font = QApplication::font();
    QPalette palette;
    palette.setColor(QPalette::Window, background);
    palette.setColor(QPalette::WindowText, background == QColor(Qt::white) ? Qt::black : Qt::white);
    const int height = NetworkRowInMenu::height(font, row.network.isCurrentNetwork);
    QImage image(300, height + 2 * margin, QImage::Format_RGB32);
    image.fill(background);
    QPainter painter(&image);
    row.paint(painter, QRectF(0, margin, 300, height), palette, font);
    return image;
}

bool differ(const QImage& a, const QImage& b, const QRectF& where)
{
    return a.copy(where.toRect()) != b.copy(where.toRect());
}

} // namespace

TEST(MenuRow, OffersToConnectUnderThePointerOrTheKeys)
{
    const NetworkRowInMenu plain = row();
    NetworkRowInMenu hovered = plain;
    hovered.isHovering = true;
    NetworkRowInMenu focused = plain;
    focused.isFocused = true;
    NetworkRowInMenu open = plain;
    open.network.security = u"None"_s;
    const QRect rect = picture(plain).rect();
    const MenuRowLayout places = plain.layout(rect, QApplication::font(), Qt::LeftToRight);
    const MenuRowLayout mirrored = plain.layout(rect, QApplication::font(), Qt::RightToLeft);
    EXPECT_EQ(places.button().right(), rect.width());
    EXPECT_EQ(mirrored.button().left(), 0);
    EXPECT_LT(mirrored.symbol.right(), mirrored.connect->left());
    const QRectF narrow(0, 0, 100, rect.height());
    EXPECT_EQ(plain.layout(narrow, QApplication::font(), Qt::LeftToRight).name.width(), 0);

    for (const QColor background : {QColor(Qt::white), QColor(30, 30, 30)}) {
        const QImage still = picture(plain, background);
        EXPECT_TRUE(differ(still, picture(hovered, background), *places.connect));
        EXPECT_TRUE(differ(still, picture(focused, background), *places.connect));
        EXPECT_TRUE(differ(still, picture(hovered, background), {100, 1, 20, 5})) << "it is tinted";
        EXPECT_EQ(still.pixelColor(places.connect->center().toPoint()), background);
        EXPECT_NE(still.pixelColor(QPoint(150, still.height() - 1)), background) << "the divider";
        EXPECT_TRUE(differ(still, picture(open, background), places.symbol)) << "its own lock, always";
    }
}

TEST(MenuRow, OffersInReadableWords)
{
    constexpr int enlargement = 4;
    NetworkRowInMenu hovered = row();
    hovered.isHovering = true;
    const QRect rect(0, 0, 300, NetworkRowInMenu::height(QApplication::font(), false));
    const QRectF connect = *hovered.layout(rect, QApplication::font(), Qt::LeftToRight).connect;
    for (const QColor ground : {QColor(239, 239, 239), QColor(42, 46, 50), QColor(96, 96, 96)}) {
        QImage image(rect.size() * enlargement, QImage::Format_RGB32);
        image.setDevicePixelRatio(enlargement);
        image.fill(ground);
        QPainter painter(&image);
        hovered.paint(painter, rect, QPalette(ground), QApplication::font());
        const QRect place(connect.topLeft().toPoint() * enlargement, connect.size().toSize() * enlargement);
        EXPECT_GE(contrastWithin(image.copy(place)), Theme::readableContrast) << ground.name().toStdString();
    }
}

TEST(MenuRow, MarksTheJoinedNetworkAndDrawsItsHistory)
{
    NetworkRowInMenu joined = joinedRow();
    const QImage image = picture(joined);
    const MenuRowLayout places = joined.layout(image.rect(), QApplication::font(), Qt::LeftToRight);
    const QColor tint = Theme::blended(QColor(0, 122, 255), Qt::white, 0.1);
    EXPECT_NEAR(image.pixelColor(200, 3).red(), tint.red(), 1);
    EXPECT_EQ(image.pixelColor(200, image.height() - 1), image.pixelColor(200, 3)) << "no divider";
    EXPECT_EQ(image.pixelColor(places.symbol.center().toPoint() + QPoint(0, -4)), QColor(52, 199, 89));

    joined.isHovering = true;
    EXPECT_EQ(picture(joined), image) << "it never shows the pointer";
    NetworkRowInMenu quiet = joined;
    quiet.network.signalHistory = {};
    EXPECT_TRUE(differ(picture(quiet), image, *places.chart));
    const QRectF besides(0, 0, 300, places.chart->top() - 2);
    EXPECT_FALSE(differ(picture(quiet), image, besides)) << "the chart keeps to its place";
}

TEST(MenuRow, ShowsAnyNameAsOneLineWithinTheRow)
{
    for (const QString& ssid : hostileNames()) {
        SCOPED_TRACE(ssid.toStdString());
        const int margin = 10;
        const QImage image = picture(row(ssid), Qt::white, margin);
        for (const int outside : {0, image.height() - margin}) {
            EXPECT_EQ(coloursOf(image.copy(0, outside, image.width(), margin)).size(), 1);
        }
        const MenuRowLayout places =
            row().layout(picture(row()).rect(), QApplication::font(), Qt::LeftToRight);
        EXPECT_FALSE(differ(picture(row(ssid)), picture(row(u" "_s)), places.button()));
    }
    EXPECT_EQ(row(u"a\u202Eb"_s).accessibleText(), u"Connect to \u2068a\uFFFDb\u2069, WPA2"_s);
    EXPECT_EQ(joinedRow().accessibleText(), u"\u2068Cafe\u2069, joined"_s);
}

} // namespace aerolith
