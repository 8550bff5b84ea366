#include "platform/linux/nl80211/InterfaceInfo.h"

#include "platform/linux/nl80211/Netlink.h"

#include <gtest/gtest.h>
#include <linux/nl80211.h>

namespace aerolith::nl80211 {
namespace {

using test::attribute;
using test::numberAttribute;

TEST(InterfaceInfo, IsOnePerMessage)
{
    const QByteArray joined = numberAttribute(NL80211_ATTR_IFINDEX, quint32{3}) +
                              attribute(NL80211_ATTR_IFNAME, QByteArray("wlan0", 6)) +
                              attribute(NL80211_ATTR_MAC, QByteArray::fromHex("0200000000ff")) +
                              numberAttribute(NL80211_ATTR_WIPHY, quint32{1}) +
                              numberAttribute(NL80211_ATTR_IFTYPE, quint32{NL80211_IFTYPE_STATION}) +
                              attribute(NL80211_ATTR_SSID, "a\xff") +
                              numberAttribute(NL80211_ATTR_WIPHY_TX_POWER_LEVEL, qint32{2050});
    const auto interfaces = decodeInterfaces(bytesOf(test::message(NL80211_CMD_NEW_INTERFACE, joined) +
                                                     test::message(NL80211_CMD_NEW_INTERFACE, {})));
    ASSERT_TRUE(interfaces.ok()) << interfaces.error().description.toStdString();
    ASSERT_EQ(interfaces.value().size(), 2);
    const InterfaceInfo& first = interfaces.value().first();
    EXPECT_EQ(first.index, 3U);
    EXPECT_EQ(first.name, QStringLiteral("wlan0"));
    EXPECT_EQ(first.address, (ieee80211::HardwareAddress{2, 0, 0, 0, 0, 0xff}));
    EXPECT_EQ(first.radio, 1U);
    EXPECT_EQ(first.type, quint32{NL80211_IFTYPE_STATION});
    EXPECT_EQ(first.ssid, QByteArray("a\xff"));
    EXPECT_EQ(first.transmitPower, 2050);
    EXPECT_FALSE(interfaces.value().last().ssid);
}

TEST(InterfaceInfo, TurnsDecibelsIntoMilliwatts)
{
    EXPECT_EQ(milliwatts(0), 1);
    EXPECT_EQ(milliwatts(2050), 112);
    EXPECT_EQ(milliwatts(-2000), 0);
    EXPECT_GT(milliwatts(std::numeric_limits<std::int32_t>::max()), 0);
}

} // namespace
} // namespace aerolith::nl80211
