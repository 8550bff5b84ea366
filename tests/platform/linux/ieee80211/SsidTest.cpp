#include "platform/linux/ieee80211/Ssid.h"

#include "platform/linux/ieee80211/Frame.h"

#include <gtest/gtest.h>

namespace aerolith::ieee80211 {
namespace {

using test::element;
using test::hex;

TEST(Ssid, IsHiddenWithoutAByteThatSaysSomething)
{
    for (const QByteArray& frame : {QByteArray(), element(0, {}), element(0, QByteArray(32, '\0')),
                                    element(0, QByteArray(33, 'a')), hex("0004616263")}) {
        const QByteArray ssid = ssidBytes(bytesOf(frame));
        EXPECT_EQ(ssid, QByteArray()) << frame.toHex().constData();
        EXPECT_EQ(ssidText(ssid), std::nullopt);
    }
    EXPECT_EQ(ssidBytes(bytesOf(element(0, QByteArray(32, 'a')))), QByteArray(32, 'a'));
}

TEST(Ssid, ShowsEveryByteThatIsNotUtf8AndKeepsTheRestVerbatim)
{
    EXPECT_EQ(ssidText(hex("fffe80c328a0")), QStringLiteral("\uFFFD\uFFFD\uFFFD\uFFFD(\uFFFD"));
    EXPECT_EQ(ssidText(hex("41e282")), QStringLiteral("A\uFFFD\uFFFD"));
    EXPECT_EQ(ssidText(hex("610062")), QString::fromLatin1("a\0b", 3));
    EXPECT_EQ(ssidText(hex("efbbbf41")), QStringLiteral("\uFEFFA"));
    EXPECT_EQ(ssidText(hex("0041")), QString::fromLatin1("\0A", 2));
}

} // namespace
} // namespace aerolith::ieee80211
