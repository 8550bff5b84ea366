#include "platform/simulated/Neighbourhood.h"

#include "support/Printing.h"

#include <QCryptographicHash>
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

/// Guards against arithmetic that differs from machine to machine, or from one compiler to the next.
TEST(Neighbourhood, isTheSameOnEveryMachine)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const ScenarioCycle& cycle : neighbourhood().cycles) {
        for (const CWNetwork& network : cycle.networks) {
            hash.addData(u"%1 %2\n"_s.arg(*network.bssid).arg(network.rssiValue).toLatin1());
        }
    }
    EXPECT_EQ(hash.result().toHex(), "1c7d4b604c41bb8b51082e437af3bd8a15cf1fe57ed03b3cd675a9cd9140f4db");
}

} // namespace
} // namespace aerolith
