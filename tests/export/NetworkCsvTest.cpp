#include "export/NetworkCsv.h"

#include "export/SampleNetworks.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace aerolith;
using namespace Qt::StringLiterals;

TEST(NetworkCsv, WritesTheDetailsWithTheHistory)
{
    const DateTexts texts({.collation = "en_US", .time = "en_US", .timeZone = "America/New_York"});
    EXPECT_EQ(networkDetailsCSV(harborLoft(), texts), u"\"Field\",\"Value\"\n"
                                                      "\"SSID\",\"Harbor Loft\"\n"
                                                      "\"BSSID\",\"0a:1b:2c:3d:4e:5f\"\n"
                                                      "\"RSSI\",\"-58 dBm\"\n"
                                                      "\"Noise\",\"-90 dBm\"\n"
                                                      "\"SNR\",\"32 dB\"\n"
                                                      "\"Channel\",\"36\"\n"
                                                      "\"Channel Width\",\"80 MHz\"\n"
                                                      "\"Band\",\"5 GHz\"\n"
                                                      "\"Security\",\"WPA2, Personal\"\n"
                                                      "\"Network Type\",\"Infrastructure\"\n"
                                                      "\"Beacon Interval\",\"100\"\n"
                                                      "\"PHY Modes\",\"802.11a, 802.11n, 802.11ac\"\n"
                                                      "\"Current Network\",\"Yes\"\n"
                                                      "\"Last Seen\",\"Nov 16, 2026 at 6:21:48 PM\"\n"
                                                      "\"Country\",\"US\"\n"
                                                      "\"\",\"\"\n"
                                                      "\"Signal History\",\"\"\n"
                                                      "\"Timestamp\",\"RSSI (dBm)\",\"Noise (dBm)\"\n"
                                                      "\"6:21:28 PM\",\"-60\",\"-90\"\n"
                                                      "\"6:21:38 PM\",\"-59\",\"-90\"\n"
                                                      "\"6:21:48 PM\",\"-58\",\"-90\""_s);
    WiFiNetwork cafe = cornerCafe();
    cafe.isIBSS = true;
    const QString details = networkDetailsCSV(cafe, texts);
    EXPECT_TRUE(details.contains(u"\"Network Type\",\"Ad-Hoc\"\n"_s));
    EXPECT_TRUE(details.contains(u"\"PHY Modes\",\"\"\n\"Current Network\",\"No\"\n"_s));
    EXPECT_FALSE(details.contains(u"Country"_s));
    EXPECT_TRUE(details.endsWith(u"\"Timestamp\",\"RSSI (dBm)\",\"Noise (dBm)\""_s));
}

TEST(NetworkCsv, KeepsHostileNamesInTheirField)
{
    WiFiNetwork network = cornerCafe();
    const std::pair<QString, QString> names[] = {
        {u"a,b\nc\r"_s, u"\"a,b\nc\r\","_s},
        {u"\"say \"\"hi\""_s, u"\"\"\"say \"\"\"\"hi\"\"\","_s},
        {u"=1+1"_s, u"\"=1+1\","_s},
        {u"%1 \u202eabc"_s, u"\"%1 \u202eabc\","_s},
    };
    for (const auto& [name, field] : names) {
        network.ssid = name;
        EXPECT_TRUE(networkListCSV({network}).contains(u"\n"_s + field)) << name.toStdString();
    }
}
