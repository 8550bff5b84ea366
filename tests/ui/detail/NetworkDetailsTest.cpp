#include "ui/detail/NetworkDetails.h"

#include "support/Printing.h"
#include "ui/detail/SampleHistory.h"

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

WiFiNetwork kitchen()
{
    WiFiNetwork network;
    network.ssid = u"Kitchen"_s;
    network.rssi = -60;
    network.channelWidth = 80;
    network.security = u"WPA2, Personal"_s;
    network.isPhyModeSupported = {u"802.11n"_s, u"802.11ac"_s};
    return network;
}

/// "label: value" of each.
QStringList texts(const NetworkDetailList& details)
{
    QStringList texts;
    for (const NetworkDetail& detail : details) {
        EXPECT_FALSE(detail.tooltip.isEmpty());
        texts.append(detail.label + u": "_s + detail.value);
    }
    return texts;
}

} // namespace

TEST(NetworkDetails, FollowTheUnusual)
{
    WiFiNetwork network = kitchen();
    network.noise = -57;
    network.countryCode = u"DE"_s;
    network.isIBSS = true;
    const NetworkDetails details(network);
    EXPECT_EQ(texts(details.signalOverview).last(), u"SNR: -3 dB"_s);
    EXPECT_EQ(texts(details.networkInformation).mid(4),
              (QStringList{u"Channel Width: 80 MHz"_s, u"Security: WPA2, Personal"_s, u"Country: DE"_s}));
    EXPECT_EQ(texts(details.advanced).mid(1),
              (QStringList{u"Network Type: Ad-Hoc"_s, u"PHY Modes: 802.11n, 802.11ac"_s}));
}

TEST(SignalSummary, PutsTheChartIntoWords)
{
    WiFiNetwork network = kitchen();
    EXPECT_EQ(signalSummary(network), u"\u2068Kitchen\u2069, 0 samples"_s);
    network.signalHistory = history({-60});
    EXPECT_EQ(signalSummary(network),
              u"\u2068Kitchen\u2069, latest -60 dBm, lowest -60 dBm, highest -60 dBm, 1 sample"_s);
    network.ssid = u"%1\n%2"_s;
    network.signalHistory = history({-70, -100, -50, -60});
    EXPECT_EQ(signalSummary(network),
              u"\u2068%1\uFFFD%2\u2069, latest -60 dBm, lowest -100 dBm, highest -50 dBm, 4 samples"_s);
}

} // namespace aerolith
