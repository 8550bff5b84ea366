#include "export/NetworkCsv.h"

#include "export/Csv.h"
#include "export/Readings.h"

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

void addProperties(CsvText& csv, const WiFiNetwork& network, const DateTexts& texts)
{
    csv.addRow({u"Field", u"Value"});
    csv.addRow({u"SSID", network.ssid});
    csv.addRow({u"BSSID", network.bssid});
    csv.addRow({u"RSSI", withUnit(network.rssi, "dBm"_L1)});
    csv.addRow({u"Noise", withUnit(network.noise, "dBm"_L1)});
    csv.addRow({u"SNR", withUnit(signalToNoise(network), "dB"_L1)});
    csv.addRow({u"Channel", DecimalField(network.channel).text()});
    csv.addRow({u"Channel Width", withUnit(network.channelWidth, "MHz"_L1)});
    csv.addRow({u"Band", network.channelBand});
    csv.addRow({u"Security", network.security});
    csv.addRow({u"Network Type", networkType(network)});
    csv.addRow({u"Beacon Interval", DecimalField(network.beaconInterval).text()});
    csv.addRow({u"PHY Modes", phyModesText(network)});
    csv.addRow({u"Current Network", network.isCurrentNetwork ? u"Yes"_s : u"No"_s});
    csv.addRow({u"Last Seen", texts.mediumDateTime(network.timestamp)});
    if (network.countryCode) {
        csv.addRow({u"Country", *network.countryCode});
    }
}

void addHistory(CsvText& csv, const SignalHistoryList& history, const DateTexts& texts)
{
    csv.addRow({u"", u""});
    csv.addRow({u"Signal History", u""});
    csv.addRow({u"Timestamp", u"RSSI (dBm)", u"Noise (dBm)"});
    for (const SignalHistory& sample : history) {
        csv.addRow({texts.mediumTime(sample.timestamp), DecimalField(sample.rssi).text(),
                    DecimalField(sample.noise).text()});
    }
}

} // namespace

QString networkListCSV(const WiFiNetworkList& networks)
{
    /// A row of common names; a list with longer ones grows the text a few times.
    constexpr qsizetype usualRow = 96;
    CsvText csv;
    csv.reserve((networks.size() + 1) * usualRow);
    csv.addRow({u"SSID", u"BSSID", u"RSSI (dBm)", u"Channel", u"Band", u"Security", u"Country"});
    for (const WiFiNetwork& network : networks) {
        csv.addRow({network.ssid, network.bssid, DecimalField(network.rssi).text(),
                    DecimalField(network.channel).text(), network.channelBand, network.security,
                    network.countryCode ? QStringView(*network.countryCode) : u"Unknown"});
    }
    return csv.text();
}

QString networkDetailsCSV(const WiFiNetwork& network, const DateTexts& texts)
{
    CsvText csv;
    addProperties(csv, network, texts);
    addHistory(csv, network.signalHistory, texts);
    return csv.text();
}

} // namespace aerolith
