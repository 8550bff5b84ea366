#include "model/NetworkRecord.h"

#include "support/FakeWiFi.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <set>

using namespace aerolith;
using namespace Qt::StringLiterals;

namespace {

WiFiNetwork recordOf(const CWNetwork& result, const std::optional<QString>& currentBSSID = {})
{
    IdentifierSource identifiers;
    return makeNetwork(result, TimePoint(), currentBSSID, {}, identifiers);
}

} // namespace

TEST(NetworkRecord, AcceptsOnlyNamedAccessPointsWithAnAddress)
{
    for (const auto& [name, accepted] : {std::pair(u"Quay"_s, true),
                                         {u"unknown"_s, true},
                                         {u"Unknown "_s, true},
                                         {u"Unknown"_s, false},
                                         {u""_s, false}}) {
        CWNetwork found = network(u"aa"_s, name);
        EXPECT_EQ(isAccepted(found), accepted) << name.toStdString();
        found.bssid.reset();
        EXPECT_FALSE(isAccepted(found));
    }
    CWNetwork nameless = network(u"aa"_s, u"Quay"_s);
    nameless.ssid.reset();
    EXPECT_FALSE(isAccepted(nameless));
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

TEST(NetworkRecord, DerivesTheBandFromTheChannel)
{
    const std::pair<qint64, QString> bands[] = {{-1, u"Unknown"_s}, {0, u"Unknown"_s},  {1, u"2.4 GHz"_s},
                                                {14, u"2.4 GHz"_s}, {15, u"Unknown"_s}, {35, u"Unknown"_s},
                                                {36, u"5 GHz"_s},   {177, u"5 GHz"_s},  {178, u"Unknown"_s}};
    for (const auto& [channel, band] : bands) {
        EXPECT_EQ(bandName(channel), band) << channel;
    }
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
        seen.insert(identifiers.next());
    }
    EXPECT_EQ(seen.size(), 1000U);
    EXPECT_EQ(seen.begin()->version(), QUuid::Random);
}
