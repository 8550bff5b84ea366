#include "ui/detail/InterfaceSnapshot.h"

#include "ui/common/PlainText.h"

#include <QStringList>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

std::optional<QList<qint64>> channelNumbers(const std::optional<QList<CWChannel>>& channels)
{
    if (!channels) {
        return {};
    }
    QList<qint64> numbers;
    for (const CWChannel& channel : *channels) {
        numbers.append(channel.channelNumber);
    }
    return numbers;
}

QString channelText(const std::optional<QList<qint64>>& channels)
{
    if (!channels) {
        return u"None"_s;
    }
    QStringList numbers;
    for (const qint64 channel : *channels) {
        numbers.append(QString::number(channel));
    }
    return numbers.join(u", "_s);
}

} // namespace

InterfaceSnapshot InterfaceSnapshot::read(const CWInterface* interface, const HostAddresses& addresses)
{
    InterfaceSnapshot snapshot;
    snapshot.ipv4Address = addresses.localIPv4Address();
    if (interface != nullptr) {
        snapshot.name = interface->interfaceName();
        snapshot.hardwareAddress = interface->hardwareAddress();
        snapshot.joinedNetwork = interface->ssid();
        snapshot.transmitPower = interface->transmitPower();
        snapshot.channels = channelNumbers(interface->supportedWLANChannels());
    }
    return snapshot;
}

QList<InterfaceFact> interfaceFacts(const InterfaceSnapshot& snapshot)
{
    const QString unknown = u"Unknown"_s;
    QList<InterfaceFact> facts{{u"Interface"_s, snapshot.name.value_or(unknown)},
                               {u"Hardware Address"_s, snapshot.hardwareAddress.value_or(unknown)}};
    if (snapshot.ipv4Address) {
        facts.append({u"IP Address"_s, *snapshot.ipv4Address});
    }
    if (snapshot.joinedNetwork) {
        facts.append({u"Connected Network"_s, singleLine(*snapshot.joinedNetwork)});
    }
    facts.append({u"Transmit Power"_s, u"%1 mW"_s.arg(snapshot.transmitPower)});
    facts.append({u"Supported Channels"_s, channelText(snapshot.channels)});
    return facts;
}

} // namespace aerolith
