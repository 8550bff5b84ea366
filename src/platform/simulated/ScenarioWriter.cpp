#include "platform/simulated/ScenarioWriter.h"

#include "platform/simulated/ScenarioNames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QJsonValue valueOf(const std::optional<QString>& text)
{
    return text ? QJsonValue(*text) : QJsonValue();
}

QJsonValue valueOf(const std::optional<CWChannel>& channel)
{
    return channel ? QJsonObject{{u"number"_s, channel->channelNumber}, {u"width"_s, channel->channelWidth}}
                   : QJsonValue();
}

QJsonValue valueOf(const std::optional<ScenarioAssociation>& joined)
{
    return joined ? QJsonObject{{u"ssid"_s, valueOf(joined->ssid)}, {u"bssid"_s, valueOf(joined->bssid)}}
                  : QJsonValue();
}

QJsonValue valueOf(const std::optional<QList<qint64>>& numbers)
{
    if (!numbers) {
        return {};
    }
    QJsonArray list;
    for (const qint64 number : *numbers) {
        list.append(number);
    }
    return list;
}

QJsonValue valueOf(const CodeSet& codes)
{
    QJsonArray list;
    for (int code = 0; code < CodeSet::size; ++code) {
        if (codes.contains(code)) {
            list.append(code);
        }
    }
    return list;
}

QJsonValue valueOf(const std::optional<ScenarioInterface>& interface)
{
    if (!interface) {
        return {};
    }
    return QJsonObject{
        {u"name"_s, valueOf(interface->name)},
        {u"hardwareAddress"_s, valueOf(interface->hardwareAddress)},
        {u"transmitPower"_s, interface->transmitPower},
        {u"channels"_s, valueOf(interface->channels)},
        {u"powerOn"_s, interface->powerOn},
        {u"powerRefused"_s, valueOf(interface->powerRefused)},
    };
}

QJsonObject objectOf(const CWNetwork& network)
{
    return {
        {u"bssid"_s, valueOf(network.bssid)},
        {u"ssid"_s, valueOf(network.ssid)},
        {u"rssi"_s, network.rssiValue},
        {u"channel"_s, valueOf(network.wlanChannel)},
        {u"security"_s, valueOf(network.securityCodes)},
        {u"country"_s, valueOf(network.countryCode)},
        {u"beaconInterval"_s, network.beaconInterval},
        {u"ibss"_s, network.ibss},
        {u"phyModes"_s, valueOf(network.phyModeCodes)},
    };
}

template <typename Choice, std::size_t Count>
QString nameOf(Choice choice, const std::array<std::pair<QLatin1StringView, Choice>, Count>& names)
{
    const auto* const found = std::find_if(names.begin(), names.end(),
                                           [&](const auto& candidate) { return candidate.second == choice; });
    Q_ASSERT(found != names.end());
    return found->first;
}

QByteArray compact(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// An object's text with one more member, of which the value's text is given.
QByteArray withMember(const QJsonObject& object, const QByteArray& key, const QByteArray& value)
{
    QByteArray text = compact(object);
    text.chop(1);
    return text + (object.isEmpty() ? "" : ",") + '"' + key + "\":" + value + '}';
}

QByteArray listOf(const QByteArrayList& elements)
{
    return "[\n" + elements.join(",\n") + "\n]";
}

} // namespace

QByteArray cycleJson(const ScenarioCycle& cycle)
{
    if (cycle.error) {
        return compact({{u"error"_s, cycle.error->description}});
    }
    QByteArrayList networks;
    networks.reserve(cycle.networks.size());
    for (const CWNetwork& network : cycle.networks) {
        networks.append(compact(objectOf(network)));
    }
    return withMember({{u"joined"_s, valueOf(cycle.joined)}}, "networks", listOf(networks));
}

QByteArray scenarioJson(const Scenario& scenario)
{
    QJsonObject passwords;
    for (auto password = scenario.passwords.cbegin(); password != scenario.passwords.cend(); ++password) {
        passwords.insert(password.key(), password.value());
    }
    QByteArrayList cycles;
    cycles.reserve(scenario.cycles.size());
    for (const ScenarioCycle& cycle : scenario.cycles) {
        cycles.append(cycleJson(cycle));
    }
    return withMember({{u"authorization"_s, nameOf(scenario.authorization, authorizationNames)},
                       {u"answer"_s, nameOf(scenario.answer, authorizationNames)},
                       {u"interface"_s, valueOf(scenario.interface)},
                       {u"scanSeconds"_s, scenario.scanSeconds.count()},
                       {u"afterLast"_s, nameOf(scenario.afterLast, afterLastNames)},
                       {u"passwords"_s, passwords}},
                      "cycles", listOf(cycles)) +
           '\n';
}

} // namespace aerolith
