#include "platform/simulated/Neighbourhood.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace aerolith {
namespace {

TEST(Neighbourhood, showsEveryKindOfAccessPoint)
{
    const Scenario scenario = neighbourhood();
    quint64 securityCodes = 0;
    quint64 phyModeCodes = 0;
    QSet<int> widths;
    for (const ScenarioCycle& cycle : scenario.cycles) {
        bool hearsJoined = false;
        for (const CWNetwork& network : cycle.networks) {
            securityCodes |= network.securityCodes.bits();
            phyModeCodes |= network.phyModeCodes.bits();
            widths.insert(network.wlanChannel->channelWidth);
            hearsJoined |= network.bssid == cycle.joined->bssid && network.ssid == cycle.joined->ssid;
            EXPECT_LE(network.ssidData.size(), 32);
            EXPECT_EQ(network.ssidData, network.ssid.value_or(QString()).toUtf8());
        }
        EXPECT_TRUE(hearsJoined);
    }
    EXPECT_EQ(securityCodes, 0x7fffU);
    EXPECT_EQ(phyModeCodes, 0x7eU);
    EXPECT_EQ(widths, (QSet<int>{1, 2, 3, 4}));
}

} // namespace
} // namespace aerolith
