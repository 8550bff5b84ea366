#include "platform/linux/nl80211/SupportedChannels.h"

#include "platform/linux/nl80211/Netlink.h"

#include <gtest/gtest.h>
#include <linux/nl80211.h>

#include <string>
#include <tuple>

namespace aerolith::nl80211 {
namespace {

using test::attribute;
using test::numberAttribute;

QByteArray channel(quint32 frequency, std::initializer_list<int> flags = {})
{
    QByteArray attributes = numberAttribute(NL80211_FREQUENCY_ATTR_FREQ, frequency);
    for (const int flag : flags) {
        attributes += attribute(flag, {});
    }
    return attribute(0, attributes);
}

QByteArray channels(const QByteArray& list)
{
    return attribute(NL80211_BAND_ATTR_FREQS, list);
}

/// One message about one band.
QByteArray band(int number, const QByteArray& attributes)
{
    return test::message(NL80211_CMD_NEW_WIPHY,
                         attribute(NL80211_ATTR_WIPHY_BANDS, attribute(number, attributes)));
}

QByteArray heCapability(char firstByte)
{
    const QByteArray phy = attribute(NL80211_BAND_IFTYPE_ATTR_HE_CAP_PHY, firstByte + QByteArray(10, '\0'));
    return attribute(NL80211_BAND_ATTR_IFTYPE_DATA, attribute(1, phy));
}

/// Number and width code of each.
std::string listed(const QByteArray& dump)
{
    const auto decoded = decodeSupportedChannels(bytesOf(dump));
    if (!decoded.ok()) {
        return decoded.error().description.toStdString();
    }
    std::string texts;
    for (const auto& [number, width] : decoded.value()) {
        texts += std::to_string(number) + '/' + std::to_string(width) + ' ';
    }
    return texts;
}

const QByteArray ht40 = numberAttribute(NL80211_BAND_ATTR_HT_CAPA, quint16{0x0002});
const QByteArray vht80 = numberAttribute(NL80211_BAND_ATTR_VHT_CAPA, quint32{0});
const QByteArray vht160 = numberAttribute(NL80211_BAND_ATTR_VHT_CAPA, quint32{1 << 2});

TEST(SupportedChannels, HaveTheWidthsThatRadioAndRulesAllow)
{
    const QByteArray limited =
        channel(5180, {NL80211_FREQUENCY_ATTR_DISABLED}) + channel(5200, {NL80211_FREQUENCY_ATTR_NO_80MHZ}) +
        channel(5220, {NL80211_FREQUENCY_ATTR_NO_160MHZ, NL80211_FREQUENCY_ATTR_NO_HT40_MINUS}) +
        channel(5825, {NL80211_FREQUENCY_ATTR_NO_HT40_MINUS, NL80211_FREQUENCY_ATTR_NO_HT40_PLUS,
                       NL80211_FREQUENCY_ATTR_NO_80MHZ, NL80211_FREQUENCY_ATTR_NO_160MHZ});
    const std::tuple<int, QByteArray, std::string> cases[] = {
        {NL80211_BAND_5GHZ, channels(channel(5180)), "36/1 "},
        {NL80211_BAND_5GHZ, ht40 + vht80 + channels(channel(5180)), "36/1 36/2 36/3 "},
        {NL80211_BAND_5GHZ, ht40 + vht160 + channels(limited), "40/1 40/2 40/4 44/1 44/2 44/3 165/1 "},
        // What a capability means follows the band.
        {NL80211_BAND_2GHZ, vht160 + channels(channel(2412)), "1/1 "},
        {NL80211_BAND_2GHZ, heCapability(0x0e) + channels(channel(2412)), "1/1 1/2 "},
        {NL80211_BAND_6GHZ, heCapability(0x0c) + channels(channel(5955)), "1/1 1/2 1/3 1/4 "},
        {NL80211_BAND_6GHZ, heCapability(0x02) + channels(channel(5955)), "1/1 "},
        {NL80211_BAND_5GHZ, attribute(NL80211_BAND_ATTR_HT_CAPA, "x"),
         "attribute 4 of a band has 1 bytes instead of 2"},
        {NL80211_BAND_5GHZ, channels(attribute(0, "abc")),
         "a channel is cut short within an attribute's header at byte 0"},
    };
    for (const auto& [number, attributes, expected] : cases) {
        EXPECT_EQ(listed(band(number, attributes)), expected);
    }
}

TEST(SupportedChannels, AreJoinedFromASplitDumpInAnyOrder)
{
    const QByteArray dump =
        test::message(NL80211_CMD_NEW_WIPHY, numberAttribute(NL80211_ATTR_WIPHY, quint32{0})) +
        band(NL80211_BAND_5GHZ, channels(channel(5180))) + band(NL80211_BAND_2GHZ, ht40) +
        band(NL80211_BAND_2GHZ, channels(channel(2412))) + band(NL80211_BAND_5GHZ, vht80) +
        band(NL80211_BAND_2GHZ, channels(channel(2417)));
    EXPECT_EQ(listed(dump), "1/1 1/2 2/1 2/2 36/1 36/3 ");
}

} // namespace
} // namespace aerolith::nl80211
