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
