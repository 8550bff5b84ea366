#include "platform/linux/ieee80211/PhyModes.h"

#include "platform/linux/ieee80211/Frame.h"

#include <gtest/gtest.h>

namespace aerolith::ieee80211 {
namespace {

using test::element;
using test::extensionElement;
using test::hex;

// The plain cases are among the captured ones.
TEST(PhyModes, NeedRatesOfTheBandOrWholeCapabilityElements)
{
    const QByteArray ofdm = element(1, hex("8c129824b048606c"));
    const QByteArray cutShort = element(45, QByteArray(25, '\0')) + element(191, QByteArray(11, '\0')) +
                                extensionElement(35, QByteArray(20, '\0'));
    EXPECT_EQ(phyModes(bytesOf(ofdm), Band::ghz5).bits(), 1U << 1);
    EXPECT_EQ(phyModes(bytesOf(ofdm), Band::ghz6).bits(), 0U);
    EXPECT_EQ(phyModes(bytesOf(ofdm), {}).bits(), 0U);
    EXPECT_EQ(phyModes(bytesOf(element(1, hex("fffefbfa"))), Band::ghz5).bits(), 0U)
        << "required features, not rates";
    EXPECT_EQ(phyModes(bytesOf(cutShort), Band::ghz5).bits(), 0U);
}

} // namespace
} // namespace aerolith::ieee80211
