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

/// On white.
QImage picture(const NetworkRowInMenu& row, int margin = 0)
{
    const QFont font = QApplication::font();
    const int height = NetworkRowInMenu::height(font, row.network.isCurrentNetwork);
    QImage image(300, height + 2 * margin, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    row.paint(painter, QRectF(0, margin, 300, height), QPalette(Qt::white), font);
    return image;
}

MenuRowLayout layout(const NetworkRowInMenu& row, int width = 300,
                     Qt::LayoutDirection direction = Qt::LeftToRight)
{
    const QFont font = QApplication::font();
    const int height = NetworkRowInMenu::height(font, row.network.isCurrentNetwork);
    return row.layout(QRectF(0, 0, width, height), font, direction);
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
    const QImage still = picture(plain);
    const MenuRowLayout places = layout(plain);
    EXPECT_TRUE(differ(still, picture(hovered), *places.connect));
    EXPECT_TRUE(differ(still, picture(focused), *places.connect));
    EXPECT_EQ(still.pixelColor(places.connect->center().toPoint()), QColor(Qt::white));

    const MenuRowLayout mirrored = layout(plain, 300, Qt::RightToLeft);
    EXPECT_EQ(mirrored.button().left(), 0);
    EXPECT_LT(mirrored.symbol.right(), mirrored.connect->left());
    EXPECT_EQ(layout(plain, 100).name.width(), 0);
}

TEST(MenuRow, OffersInReadableWords)
{
    constexpr int enlargement = 4;
    NetworkRowInMenu hovered = row();
    hovered.isHovering = true;
    const QRect rect(0, 0, 300, NetworkRowInMenu::height(QApplication::font(), false));
    const QRectF connect = *layout(hovered).connect;
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

TEST(MenuRow, MarksTheJoinedNetworkAndDrawsItsHistoryInItsPlace)
{
    NetworkRowInMenu joined = joinedRow();
    const QImage image = picture(joined);
    const MenuRowLayout places = layout(joined);
    EXPECT_EQ(image.pixelColor(places.symbol.center().toPoint() + QPoint(0, -4)), QColor(52, 199, 89));
    joined.isHovering = true;
    EXPECT_EQ(picture(joined), image) << "it never shows the pointer";
    joined.network.signalHistory = {};
    EXPECT_TRUE(differ(picture(joined), image, *places.chart));
    EXPECT_FALSE(differ(picture(joined), image, {0, 0, 300, places.chart->top() - 2}));
}

TEST(MenuRow, ShowsAnyNameAsOneLineWithinTheRow)
{
    for (const QString& ssid : hostileNames()) {
        SCOPED_TRACE(ssid.toStdString());
        const int margin = 10;
        const QImage image = picture(row(ssid), margin);
        for (const int outside : {0, image.height() - margin}) {
            EXPECT_EQ(coloursOf(image.copy(0, outside, image.width(), margin)).size(), 1);
        }
        EXPECT_FALSE(differ(picture(row(ssid)), picture(row(u" "_s)), layout(row()).button()));
    }
    EXPECT_EQ(row(u"a\u202Eb"_s).accessibleText(), u"Connect to \u2068a\uFFFDb\u2069, WPA2"_s);
    EXPECT_EQ(joinedRow().accessibleText(), u"\u2068Cafe\u2069, joined"_s);
}

} // namespace aerolith
