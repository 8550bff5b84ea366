#include "ui/detail/NetworkDetails.h"

#include "export/Readings.h"
#include "ui/common/NetworkTexts.h"
#include "ui/common/PlainText.h"

#include <QCoreApplication>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

struct NetworkDetailsTexts
{
    Q_DECLARE_TR_FUNCTIONS(NetworkDetails)
};

NetworkDetailList signalOverview(const WiFiNetwork& network)
{
    return {
        {u"currentRssi"_s, u"Current RSSI"_s, withUnit(network.rssi, "dBm"_L1),
         NetworkDetailsTexts::tr(
             "Received Signal Strength Indicator - measures how strong the WiFi signal is")},
        {u"noiseLevel"_s, u"Noise Level"_s, withUnit(network.noise, "dBm"_L1),
         NetworkDetailsTexts::tr("Background interference level that can affect signal quality")},
        {u"snr"_s, u"SNR"_s, withUnit(signalToNoise(network), "dB"_L1),
         NetworkDetailsTexts::tr("Signal-to-Noise Ratio - higher values mean better signal quality")},
    };
}

NetworkDetailList networkInformation(const WiFiNetwork& network)
{
    NetworkDetailList details{
        {u"ssid"_s, u"SSID"_s, network.ssid,
         NetworkDetailsTexts::tr("Network name broadcast by the access point")},
        {u"bssid"_s, u"BSSID"_s, network.bssid,
         NetworkDetailsTexts::tr("Unique identifier (MAC address) of the access point")},
        {u"channel"_s, u"Channel"_s, QString::number(network.channel),
         NetworkDetailsTexts::tr("WiFi channel number used for transmission")},
        {u"band"_s, u"Band"_s, network.channelBand,
         NetworkDetailsTexts::tr("Frequency band used by the network (2.4 GHz or 5 GHz)")},
        {u"channelWidth"_s, u"Channel Width"_s, withUnit(network.channelWidth, "MHz"_L1),
         NetworkDetailsTexts::tr(
             "Width of the frequency channel - wider channels can provide higher speeds")},
        {u"security"_s, u"Security"_s, network.security,
         NetworkDetailsTexts::tr("Security protocol used to protect the network")},
    };
    if (network.countryCode) {
        details.append({u"country"_s, u"Country"_s, *network.countryCode,
                        NetworkDetailsTexts::tr("Country code defining regional WiFi regulations")});
    }
    return details;
}

NetworkDetailList advanced(const WiFiNetwork& network)
{
    return {
        {u"beaconInterval"_s, u"Beacon Interval"_s, QString::number(network.beaconInterval),
         NetworkDetailsTexts::tr("Time between router beacon transmissions in milliseconds")},
        {u"networkType"_s, u"Network Type"_s, networkType(network),
         NetworkDetailsTexts::tr(
             "Infrastructure networks use access points, Ad-Hoc are direct device-to-device")},
        {u"phyModes"_s, u"PHY Modes"_s, phyModesText(network),
         NetworkDetailsTexts::tr("Supported WiFi standards and transmission modes")},
    };
}

} // namespace

NetworkDetails::NetworkDetails(const WiFiNetwork& network)
    : signalOverview(aerolith::signalOverview(network))
    , networkInformation(aerolith::networkInformation(network))
    , advanced(aerolith::advanced(network))
{
}

QString signalSummary(const WiFiNetwork& network)
{
    const SignalHistoryList& history = network.signalHistory;
    QStringList parts{isolated(singleLine(network.ssid))};
    if (!history.isEmpty()) {
        const SignalExtremes extremes = signalExtremes(history);
        parts << NetworkDetailsTexts::tr("latest %1 dBm").arg(history.last().rssi)
              << NetworkDetailsTexts::tr("lowest %1 dBm").arg(extremes.weakest)
              << NetworkDetailsTexts::tr("highest %1 dBm").arg(extremes.strongest);
    }
    const auto count = static_cast<int>(history.size());
    parts.append(count == 1 ? NetworkDetailsTexts::tr("1 sample")
                            : NetworkDetailsTexts::tr("%n samples", nullptr, count));
    return parts.join(listSeparator());
}

} // namespace aerolith
