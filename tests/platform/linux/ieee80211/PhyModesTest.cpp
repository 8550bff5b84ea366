#include "platform/linux/ieee80211/PhyModes.h"

#include "platform/linux/ieee80211/Frame.h"

#include <gtest/gtest.h>

namespace aerolith::ieee80211 {
namespace {

using test::element;
using test::extensionElement;
using test::hex;

quint64 modes(const QByteArray& frame, std::optional<Band> band)
{
    return phyModes(bytesOf(frame), band).bits();
}

constexpr quint64 a = 1 << 1;
constexpr quint64 b = 1 << 2;
constexpr quint64 g = 1 << 3;
constexpr quint64 n = 1 << 4;
constexpr quint64 ac = 1 << 5;
constexpr quint64 ax = 1 << 6;

TEST(PhyModes, FollowTheRatesInTheirBand)
{
    const QByteArray dsss = element(1, hex("82848b96"));
    EXPECT_EQ(modes(dsss + element(50, hex("0c12")), Band::ghz2_4), b | g);
    const QByteArray ofdm = element(1, hex("8c129824b048606c"));
    EXPECT_EQ(modes(ofdm, Band::ghz5), a);
    EXPECT_EQ(modes(ofdm, Band::ghz6), 0U);
    EXPECT_EQ(modes(ofdm, {}), 0U);
    EXPECT_EQ(modes(element(1, hex("fffefbfa")), Band::ghz5), 0U) << "required features, not rates";
}

TEST(PhyModes, NeedWholeCapabilityElements)
{
    const QByteArray ht(26, '\0');
    const QByteArray vht(12, '\0');
    const QByteArray he(21, '\0');
    EXPECT_EQ(modes(element(45, ht) + element(191, vht) + extensionElement(35, he), Band::ghz5), n | ac | ax);
    EXPECT_EQ(
        modes(element(45, ht.chopped(1)) + element(191, vht.chopped(1)) + extensionElement(35, he.chopped(1)),
              Band::ghz5),
        0U);
}

} // namespace
} // namespace aerolith::ieee80211
