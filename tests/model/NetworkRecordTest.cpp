#include "model/NetworkRecord.h"

#include "support/FakeWiFi.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <set>

using namespace aerolith;
using namespace Qt::StringLiterals;

namespace {

QString securityOf(std::initializer_list<int> codes)
{
    CWNetwork result;
    for (const int code : codes) {
        result.securityCodes.insert(code);
    }
    return securityDescription(result);
}

WiFiNetwork recordOf(const CWNetwork& result, const std::optional<QString>& currentBSSID = {})
{
    IdentifierSource identifiers;
    return makeNetwork(result, TimePoint(), currentBSSID, {}, identifiers);
}

} // namespace

TEST(NetworkRecord, AcceptsOnlyNamedAccessPointsWithAnAddress)
{
    for (const auto& name : {u"Quay"_s, u"unknown"_s, u"Unknown "_s}) {
        EXPECT_TRUE(isAccepted(network(u"aa"_s, name))) << name.toStdString();
    }
    EXPECT_FALSE(isAccepted(network(u"aa"_s, u""_s)));
    EXPECT_FALSE(isAccepted(network(u"aa"_s, u"Unknown"_s)));
    CWNetwork incomplete = network(u"aa"_s, u"Quay"_s);
    incomplete.bssid.reset();
    EXPECT_FALSE(isAccepted(incomplete));
    incomplete = network(u"aa"_s, u"Quay"_s);
    incomplete.ssid.reset();
    EXPECT_FALSE(isAccepted(incomplete));
}

TEST(NetworkRecord, NamesSecurityMethodsInTheirFixedOrder)
{
    EXPECT_EQ(securityOf({}), u"None"_s);
    EXPECT_EQ(securityOf({0, 7, 8, 9, 12, 13, 14}), u"None"_s) << "codes that are not asked";
    EXPECT_EQ(securityOf({4, 11, 13, 5}), u"WPA2, Personal, WPA3"_s);
    EXPECT_EQ(securityOf({1, 2, 3, 4, 5, 6, 10, 11}),
              u"WEP, WPA, WPA Mixed, WPA2, Enterprise, Personal, Dynamic WEP, WPA3"_s);
}

TEST(NetworkRecord, LabelsTheStrongestFamily)
{
    const std::pair<QString, std::pair<QString, QString>> cases[] = {
        {u"WPA2, WPA3"_s, {u"WPA3"_s, u"lock"_s}},
        {u"WPA, WPA Mixed, WPA2"_s, {u"WPA2"_s, u"lock"_s}},
        {u"WPA Mixed"_s, {u"WPA"_s, u"lock"_s}},
        {u"Dynamic WEP"_s, {u"WEP"_s, u"lock"_s}},
        {u"Enterprise, Personal"_s, {u"Secure"_s, u"lock"_s}},
        {u"None"_s, {u"Open"_s, u"lock.open"_s}},
    };
    for (const auto& [security, info] : cases) {
        WiFiNetwork record;
        record.security = security;
        EXPECT_EQ(record.securityInfo(), info) << security.toStdString();
    }
}

TEST(NetworkRecord, DerivesChannelWidthAndBand)
{
    const std::pair<qint64, QString> bands[] = {{-1, u"Unknown"_s}, {0, u"Unknown"_s},  {1, u"2.4 GHz"_s},
                                                {14, u"2.4 GHz"_s}, {15, u"Unknown"_s}, {35, u"Unknown"_s},
                                                {36, u"5 GHz"_s},   {177, u"5 GHz"_s},  {178, u"Unknown"_s}};
    for (const auto& [channel, band] : bands) {
        EXPECT_EQ(bandName(channel), band) << channel;
    }
    const std::pair<int, qint64> widths[] = {{0, 0}, {1, 20}, {2, 40}, {3, 80}, {4, 160}, {5, 0}, {-1, 0}};
    for (const auto& [code, width] : widths) {
        EXPECT_EQ(channelWidthMHz(code), width) << code;
    }
}

TEST(NetworkRecord, NamesThePhyModesInTheirFixedOrder)
{
    CWNetwork result = network(u"aa"_s, u"Quay"_s);
    result.beaconInterval = 50;
    result.ibss = true;
    for (const int mode : {6, 5, 4, 1}) {
        result.phyModeCodes.insert(mode);
    }
    const WiFiNetwork record = recordOf(result);
    EXPECT_EQ(record.beaconInterval, 50);
    EXPECT_TRUE(record.isIBSS);
    EXPECT_EQ(record.isPhyModeSupported,
              QStringList({u"802.11a"_s, u"802.11n"_s, u"802.11ac"_s, u"802.11ax"_s}));
}

TEST(NetworkRecord, StandsForItsAccessPoint)
{
    const WiFiNetwork first = recordOf(network(u"aa"_s, u"Quay"_s, -50));
    const WiFiNetwork second = recordOf(network(u"aa"_s, u"Attic"_s, -70), u"AA"_s);
    EXPECT_NE(first.id, second.id);
    EXPECT_EQ(first, second);
    EXPECT_EQ(qHash(first), qHash(second));
    EXPECT_NE(first, recordOf(network(u"bb"_s, u"Quay"_s, -50)));
    EXPECT_FALSE(second.isCurrentNetwork) << "only at the exact address of the association";
}

TEST(IdentifierSource, MakesDistinctRandomIdentifiers)
{
    IdentifierSource identifiers;
    std::set<QUuid> seen;
    for (int i = 0; i < 1000; ++i) {
        const QUuid identifier = identifiers.next();
        EXPECT_EQ(identifier.version(), QUuid::Random);
        EXPECT_EQ(identifier.variant(), QUuid::DCE);
        seen.insert(identifier);
    }
    EXPECT_EQ(seen.size(), 1000U);
}
