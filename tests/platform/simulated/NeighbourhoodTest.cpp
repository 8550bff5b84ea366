#include "platform/simulated/Neighbourhood.h"

#include "support/Printing.h"

#include <QCryptographicHash>
#include <QMap>
#include <QSet>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace aerolith {
namespace {

/// Signal by access point and cycle, for the cycles in which it was heard.
QMap<QString, QMap<int, qint64>> signalsByAccessPoint(const Scenario& scenario)
{
    QMap<QString, QMap<int, qint64>> signalsOf;
    for (int cycle = 0; cycle < scenario.cycles.size(); ++cycle) {
        for (const CWNetwork& network : scenario.cycles[cycle].networks) {
            signalsOf[network.bssid.value()][cycle] = network.rssiValue;
        }
    }
    return signalsOf;
}

TEST(Neighbourhood, driftsComesAndGoesWithoutAJump)
{
    const Scenario scenario = neighbourhood();
    ASSERT_EQ(scenario.afterLast, AfterLast::loop);
    const int cycles = static_cast<int>(scenario.cycles.size());
    const auto signalsOf = signalsByAccessPoint(scenario);
    EXPECT_GE(signalsOf.size(), 28);
    EXPECT_LE(signalsOf.size(), 34);
    int constant = 0;
    int passing = 0;
    for (const auto& signal : signalsOf) {
        QSet<qint64> values;
        for (int cycle = 0; cycle < cycles; ++cycle) {
            const int next = (cycle + 1) % cycles;
            if (signal.contains(cycle)) {
                values.insert(signal[cycle]);
                EXPECT_LE(std::llabs(signal[cycle] - signal.value(next, -92)), 12) << "after cycle " << cycle;
            }
        }
        EXPECT_GT(values.size(), 3);
        constant += signal.size() == cycles ? 1 : 0;
        passing += signal.size() < cycles ? 1 : 0;
    }
    EXPECT_GE(constant, 20);
    EXPECT_GE(passing, 5);
}

TEST(Neighbourhood, showsEveryKindOfAccessPoint)
{
    const Scenario scenario = neighbourhood();
    quint64 securityCodes = 0;
    quint64 phyModeCodes = 0;
    QSet<int> widths;
    QSet<QString> countries;
    bool hasHiddenName = false;
    for (const ScenarioCycle& cycle : scenario.cycles) {
        bool hearsJoined = false;
        for (const CWNetwork& network : cycle.networks) {
            securityCodes |= network.securityCodes.bits();
            phyModeCodes |= network.phyModeCodes.bits();
            widths.insert(network.wlanChannel->channelWidth);
            countries.insert(network.countryCode.value_or(QString()));
            hasHiddenName |= !network.ssid;
            hearsJoined |= network.bssid == cycle.joined->bssid && network.ssid == cycle.joined->ssid;
            EXPECT_LE(network.ssidData.size(), 32);
            EXPECT_EQ(network.ssidData, network.ssid.value_or(QString()).toUtf8());
        }
        EXPECT_TRUE(hearsJoined);
    }
    EXPECT_EQ(securityCodes, 0x7fffU);
    EXPECT_EQ(phyModeCodes, 0x7eU);
    EXPECT_EQ(widths, (QSet<int>{1, 2, 3, 4}));
    EXPECT_GE(countries.size(), 3);
    EXPECT_TRUE(hasHiddenName);
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
