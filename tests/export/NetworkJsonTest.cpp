#include "export/NetworkJson.h"

#include "export/SampleNetworks.h"
#include "support/Printing.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace aerolith;
using namespace Qt::StringLiterals;

TEST(NetworkJson, WritesRecordsForMachines)
{
    const QJsonArray list = QJsonDocument::fromJson(networkListJson({harborLoft(), cornerCafe()}))
                                .object()[u"networks"_s]
                                .toArray();
    ASSERT_EQ(list.size(), 2);
    const QJsonObject loft = list[0].toObject();
    EXPECT_EQ(loft[u"rssi"_s], QJsonValue(-58));
    EXPECT_EQ(loft[u"channelWidth"_s], QJsonValue(80));
    EXPECT_EQ(loft[u"timestamp"_s], QJsonValue(u"2026-11-16T23:21:48.250Z"_s));
    EXPECT_EQ(loft[u"isCurrentNetwork"_s], QJsonValue(true));
    EXPECT_FALSE(loft.contains(u"signalHistory"_s));
    EXPECT_TRUE(list[1].toObject()[u"countryCode"_s].isNull());
}

TEST(NetworkJson, DetailsHoldTheBytesOfTheNameAndTheHistoryOldestFirst)
{
    WiFiNetwork network = harborLoft();
    network.ssidBytes = QByteArray("\xff\x00\"", 3);
    network.ssid = u"\ufffd\0\""_s;
    const QJsonObject details = QJsonDocument::fromJson(networkDetailsJson(network)).object();
    EXPECT_EQ(details[u"ssid"_s], QJsonValue(network.ssid));
    EXPECT_EQ(details[u"ssidBytes"_s], QJsonValue(u"ff0022"_s));
    EXPECT_EQ(details[u"snr"_s], QJsonValue(32));
    const QJsonArray history = details[u"signalHistory"_s].toArray();
    ASSERT_EQ(history.size(), 3);
    EXPECT_EQ(
        history[0].toObject(),
        (QJsonObject{{u"timestamp"_s, u"2026-11-16T23:21:28.250Z"_s}, {u"rssi"_s, -60}, {u"noise"_s, -90}}));
}
