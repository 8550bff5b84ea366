#include "export/NetworkJson.h"

#include "export/Readings.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QString isoTime(TimePoint time)
{
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(time).time_since_epoch().count();
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC).toString(Qt::ISODateWithMs);
}

QJsonObject objectOf(const WiFiNetwork& network)
{
    return {
        {u"ssid"_s, network.ssid},
        {u"ssidBytes"_s, QString::fromLatin1(network.ssidBytes.toHex())},
        {u"bssid"_s, network.bssid},
        {u"rssi"_s, network.rssi},
        {u"noise"_s, network.noise},
        {u"channel"_s, network.channel},
        {u"channelWidth"_s, network.channelWidth},
        {u"channelBand"_s, network.channelBand},
        {u"security"_s, network.security},
        {u"countryCode"_s, network.countryCode ? QJsonValue(*network.countryCode) : QJsonValue()},
        {u"beaconInterval"_s, network.beaconInterval},
        {u"isIBSS"_s, network.isIBSS},
        {u"phyModes"_s, QJsonArray::fromStringList(network.isPhyModeSupported)},
        {u"isCurrentNetwork"_s, network.isCurrentNetwork},
        {u"timestamp"_s, isoTime(network.timestamp)},
    };
}

} // namespace

QByteArray networkListJson(const WiFiNetworkList& networks)
{
    QJsonArray list;
    for (const WiFiNetwork& network : networks) {
        list.append(objectOf(network));
    }
    return QJsonDocument(QJsonObject{{u"networks"_s, list}}).toJson();
}

QByteArray networkLineJson(const WiFiNetwork& network, int cycle, bool heard)
{
    QJsonObject line = objectOf(network);
    line.insert(u"cycle"_s, cycle);
    line.insert(u"heard"_s, heard);
    return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray networkDetailsJson(const WiFiNetwork& network)
{
    QJsonArray history;
    for (const SignalHistory& sample : network.signalHistory) {
        history.append(QJsonObject{{u"timestamp"_s, isoTime(sample.timestamp)},
                                   {u"rssi"_s, sample.rssi},
                                   {u"noise"_s, sample.noise}});
    }
    QJsonObject details = objectOf(network);
    details.insert(u"snr"_s, signalToNoise(network));
    details.insert(u"signalHistory"_s, history);
    return QJsonDocument(details).toJson();
}

} // namespace aerolith
