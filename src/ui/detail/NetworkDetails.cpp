#include "ui/detail/NetworkDetails.h"

#include "ui/common/PlainText.h"

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QString withUnit(qint64 number, QLatin1StringView unit)
{
    return QString::number(number) + u' ' + unit;
}

NetworkDetailList signalOverview(const WiFiNetwork& network)
{
    return {
        {u"currentRssi"_s, u"Current RSSI"_s, withUnit(network.rssi, "dBm"_L1),
         u"Received Signal Strength Indicator - measures how strong the WiFi signal is"_s},
        {u"noiseLevel"_s, u"Noise Level"_s, withUnit(network.noise, "dBm"_L1),
         u"Background interference level that can affect signal quality"_s},
        {u"snr"_s, u"SNR"_s, withUnit(network.rssi - network.noise, "dB"_L1),
         u"Signal-to-Noise Ratio - higher values mean better signal quality"_s},
    };
}

NetworkDetailList networkInformation(const WiFiNetwork& network)
{
    NetworkDetailList details{
        {u"ssid"_s, u"SSID"_s, network.ssid, u"Network name broadcast by the access point"_s},
        {u"bssid"_s, u"BSSID"_s, network.bssid, u"Unique identifier (MAC address) of the access point"_s},
        {u"channel"_s, u"Channel"_s, QString::number(network.channel),
         u"WiFi channel number used for transmission"_s},
        {u"band"_s, u"Band"_s, network.channelBand,
         u"Frequency band used by the network (2.4 GHz or 5 GHz)"_s},
        {u"channelWidth"_s, u"Channel Width"_s, withUnit(network.channelWidth, "MHz"_L1),
         u"Width of the frequency channel - wider channels can provide higher speeds"_s},
        {u"security"_s, u"Security"_s, network.security, u"Security protocol used to protect the network"_s},
    };
    if (network.countryCode) {
        details.append({u"country"_s, u"Country"_s, *network.countryCode,
                        u"Country code defining regional WiFi regulations"_s});
    }
    return details;
}

NetworkDetailList advanced(const WiFiNetwork& network)
{
    return {
        {u"beaconInterval"_s, u"Beacon Interval"_s, QString::number(network.beaconInterval),
         u"Time between router beacon transmissions in milliseconds"_s},
        {u"networkType"_s, u"Network Type"_s, network.isIBSS ? u"Ad-Hoc"_s : u"Infrastructure"_s,
         u"Infrastructure networks use access points, Ad-Hoc are direct device-to-device"_s},
        {u"phyModes"_s, u"PHY Modes"_s, network.isPhyModeSupported.join(u", "_s),
         u"Supported WiFi standards and transmission modes"_s},
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
        const auto [weakest, strongest] = std::minmax_element(
            history.begin(), history.end(),
            [](const SignalHistory& a, const SignalHistory& b) { return a.rssi < b.rssi; });
        parts << u"latest %1 dBm"_s.arg(history.last().rssi) << u"lowest %1 dBm"_s.arg(weakest->rssi)
              << u"highest %1 dBm"_s.arg(strongest->rssi);
    }
    parts.append(history.size() == 1 ? u"1 sample"_s : u"%1 samples"_s.arg(history.size()));
    return parts.join(u", "_s);
}

} // namespace aerolith
