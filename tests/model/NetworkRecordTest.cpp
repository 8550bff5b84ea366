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

std::pair<QString, QString> infoFor(const QString& security)
{
    WiFiNetwork record;
    record.security = security;
    return record.securityInfo();
}

WiFiNetwork recordOf(const CWNetwork& result, const std::optional<QString>& currentBSSID = {})
{
    IdentifierSource identifiers;
    return makeNetwork(result, TimePoint(), currentBSSID, {}, identifiers);
}

} // namespace

TEST(NetworkRecord, AcceptsOnlyNamedAccessPointsWithAnAddress)
{
    CWNetwork result = network(u"aa"_s, u"Quay"_s);
    EXPECT_TRUE(isAccepted(result));
    result.bssid.reset();
    EXPECT_FALSE(isAccepted(result));
    result = network(u"aa"_s, u"Quay"_s);
    result.ssid.reset();
    EXPECT_FALSE(isAccepted(result));
    EXPECT_FALSE(isAccepted(network(u"aa"_s, u""_s)));
    EXPECT_FALSE(isAccepted(network(u"aa"_s, u"Unknown"_s)));
    EXPECT_TRUE(isAccepted(network(u"aa"_s, u"unknown"_s)));
    EXPECT_TRUE(isAccepted(network(u"aa"_s, u"Unknown "_s)));
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
    using Info = std::pair<QString, QString>;
    EXPECT_EQ(infoFor(u"WPA2, WPA3"_s), Info(u"WPA3"_s, u"lock"_s));
    EXPECT_EQ(infoFor(u"WPA, WPA Mixed, WPA2"_s), Info(u"WPA2"_s, u"lock"_s));
    EXPECT_EQ(infoFor(u"WPA Mixed"_s), Info(u"WPA"_s, u"lock"_s));
    EXPECT_EQ(infoFor(u"Dynamic WEP"_s), Info(u"WEP"_s, u"lock"_s));
    EXPECT_EQ(infoFor(u"Enterprise, Personal"_s), Info(u"Secure"_s, u"lock"_s));
    EXPECT_EQ(infoFor(u"None"_s), Info(u"Open"_s, u"lock.open"_s));
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
    const WiFiNetwork none = recordOf(network(u"aa"_s, u"Quay"_s));
    EXPECT_EQ(none.channel, 0);
    EXPECT_EQ(none.channelWidth, 0);
    EXPECT_EQ(none.channelBand, u"Unknown"_s);
}

TEST(NetworkRecord, CarriesEveryAnswerOfTheResult)
{
    CWNetwork result = network(u"0a:1b:2c:3d:4e:5f"_s, u"Harbor Loft"_s, -58);
    result.ssidData = "raw";
    result.wlanChannel = CWChannel{.channelNumber = 36, .channelWidth = 3};
    result.countryCode = u"US"_s;
    result.beaconInterval = 50;
    result.ibss = true;
    for (const int mode : {6, 5, 4, 1}) {
        result.phyModeCodes.insert(mode);
    }
    const WiFiNetwork record = recordOf(result);
    EXPECT_EQ(record.ssid, u"Harbor Loft"_s);
    EXPECT_EQ(record.ssidBytes, "raw");
    EXPECT_EQ(record.rssi, -58);
    EXPECT_EQ(record.noise, -90);
    EXPECT_EQ(record.channel, 36);
    EXPECT_EQ(record.channelWidth, 80);
    EXPECT_EQ(record.countryCode, u"US"_s);
    EXPECT_EQ(record.beaconInterval, 50);
    EXPECT_TRUE(record.isIBSS);
    EXPECT_EQ(record.isPhyModeSupported,
              QStringList({u"802.11a"_s, u"802.11n"_s, u"802.11ac"_s, u"802.11ax"_s}));
    EXPECT_TRUE(recordOf(network(u"aa"_s, u"Quay"_s)).isPhyModeSupported.isEmpty());
}

TEST(NetworkRecord, IsCurrentOnlyAtTheExactAddressOfTheAssociation)
{
    const CWNetwork result = network(u"aa:bb"_s, u"Quay"_s);
    EXPECT_TRUE(recordOf(result, u"aa:bb"_s).isCurrentNetwork);
    EXPECT_FALSE(recordOf(result, u"AA:BB"_s).isCurrentNetwork);
    EXPECT_FALSE(recordOf(result).isCurrentNetwork);
}

TEST(NetworkRecord, StandsForItsAccessPoint)
{
    const WiFiNetwork first = recordOf(network(u"aa"_s, u"Quay"_s, -50));
    const WiFiNetwork second = recordOf(network(u"aa"_s, u"Attic"_s, -70));
    EXPECT_NE(first.id, second.id);
    EXPECT_EQ(first, second);
    EXPECT_EQ(qHash(first), qHash(second));
    EXPECT_NE(first, recordOf(network(u"bb"_s, u"Quay"_s, -50)));
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
