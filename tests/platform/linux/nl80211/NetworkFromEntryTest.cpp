#include "platform/linux/nl80211/NetworkFromEntry.h"

#include "platform/linux/ieee80211/Frame.h"

#include <gtest/gtest.h>

namespace aerolith::nl80211 {
namespace {

using test::element;
using test::hex;

const QByteArray psk = element(48, hex("0100000fac040100000fac040100000fac020000"));
const QByteArray sae = element(48, hex("0100000fac040100000fac040100000fac080000"));

BssEntry entry(const QByteArray& elements)
{
    BssEntry made;
    made.signal = -5550;
    made.capability = 0x11;
    made.elements = elements;
    made.clock = 1000;
    return made;
}

TEST(NetworkFromEntry, TakesTheNameFromItsOwnAndTheRestFromTheNewerFrame)
{
    BssEntry both = entry(element(0, "secret") + psk);
    both.beaconElements = element(0, {}) + sae;
    both.beaconClock = 1001;
    EXPECT_EQ(networkFromEntry(both).ssid, QStringLiteral("secret"));
    EXPECT_TRUE(networkFromEntry(both).supportsSecurity(CWSecurity::wpa3Personal));

    both.beaconClock = 999;
    EXPECT_EQ(networkFromEntry(both).ssid, QStringLiteral("secret"));
    EXPECT_TRUE(networkFromEntry(both).supportsSecurity(CWSecurity::wpa2Personal));

    both.beaconClock = 1001;
    both.beaconElements.clear();
    EXPECT_TRUE(networkFromEntry(both).supportsSecurity(CWSecurity::wpa2Personal));
}

TEST(NetworkFromEntry, KnowsNothingOfABareEntry)
{
    CWNetwork bare;
    bare.rssiValue = -100;
    bare.securityCodes.insert(static_cast<int>(CWSecurity::none));
    EXPECT_EQ(networkFromEntry(BssEntry()), bare);
}

TEST(NetworkFromEntry, CountsTheSignalInWholeDecibels)
{
    BssEntry heard = entry({});
    EXPECT_EQ(networkFromEntry(heard).rssiValue, -55);
    heard.signal = -99;
    EXPECT_EQ(networkFromEntry(heard).rssiValue, 0);
    heard.signal = {};
    heard.signalQuality = 60;
    EXPECT_EQ(networkFromEntry(heard).rssiValue, -70);
    heard.signalQuality = 255;
    EXPECT_EQ(networkFromEntry(heard).rssiValue, -50);
}

} // namespace
} // namespace aerolith::nl80211
