#include "export/NetworkJson.h"

#include "export/SampleNetworks.h"
#include "support/Printing.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace aerolith;
using namespace Qt::StringLiterals;

TEST(NetworkJson, HoldsTheBytesOfTheNameAndInTheDetailsTheHistoryOldestFirst)
{
    WiFiNetwork network = harborLoft();
    network.ssidBytes = QByteArray("\xff\x00\"", 3);
    network.ssid = u"\ufffd\0\""_s;
    const QJsonDocument list = QJsonDocument::fromJson(networkListJson({cornerCafe(), network}));
    EXPECT_TRUE(list[u"networks"_s][0][u"countryCode"_s].isNull());
    EXPECT_TRUE(list[u"networks"_s][1][u"signalHistory"_s].isUndefined());

    const QJsonDocument details = QJsonDocument::fromJson(networkDetailsJson(network));
    EXPECT_EQ(details[u"ssid"_s], QJsonValue(network.ssid));
    EXPECT_EQ(details[u"ssidBytes"_s], QJsonValue(u"ff0022"_s));
    EXPECT_EQ(details[u"snr"_s], QJsonValue(32));
    ASSERT_EQ(details[u"signalHistory"_s].toArray().size(), 3);
    EXPECT_EQ(
        details[u"signalHistory"_s][0].toObject(),
        (QJsonObject{{u"timestamp"_s, u"2026-11-16T23:21:28.250Z"_s}, {u"rssi"_s, -60}, {u"noise"_s, -90}}));
}
