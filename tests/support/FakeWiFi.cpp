#include "support/FakeWiFi.h"

namespace aerolith {

CWNetwork network(const QString& bssid, const QString& ssid, qint64 rssi)
{
    CWNetwork result;
    result.bssid = bssid;
    result.ssid = ssid;
    result.ssidData = ssid.toUtf8();
    result.rssiValue = rssi;
    return result;
}

Failure FakeInterface::setPower(bool on)
{
    if (!m_air.powerRefusal) {
        m_air.isOn = on;
    }
    return m_air.powerRefusal;
}

Failure FakeInterface::associateToNetwork(const CWNetwork& network, const std::optional<QString>& password)
{
    FakeJoin& join = m_air.joins.emplaceBack();
    join.ssidData = network.ssidData;
    if (password) {
        join.password = QString(password->constData(), password->size());
    }
    if (m_air.duringJoin) {
        m_air.duringJoin();
    }
    return m_air.joinFailure;
}

Result<QList<CWNetwork>> FakeInterface::scanForNetworksWithSSID(const std::optional<QByteArray>& ssid)
{
    if (m_air.duringScan) {
        m_air.duringScan();
    }
    if (!ssid) {
        return m_air.scan;
    }
    m_air.askedFor.append(*ssid);
    if (!m_air.scan.ok()) {
        return m_air.scan;
    }
    QList<CWNetwork> matching = m_air.scan.value();
    matching.removeIf([&](const CWNetwork& found) { return found.ssidData != *ssid; });
    return matching;
}

} // namespace aerolith
