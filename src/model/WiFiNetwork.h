#pragma once

#include "model/SignalHistoryList.h"
#include "platform/Clock.h"

#include <QByteArray>
#include <QHashFunctions>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <optional>
#include <utility>

namespace aerolith {

/// One access point as last heard, with its signal history. A value: views work on copies. It stands for its
/// access point: two records with the same BSSID are equal whatever else they hold.
struct WiFiNetwork
{
    /// Fresh for every record that is built, also for the same access point.
    QUuid id;
    /// The network name as reported; never empty and never exactly "Unknown".
    QString ssid;
    /// The name as sent, 1 to 32 bytes of anything: what `ssid` shows may have lost bytes that are not UTF-8.
    QByteArray ssidBytes;
    /// The access point's hardware address as reported; the key of every per-network map.
    QString bssid;
    /// dBm.
    qint64 rssi = 0;
    /// dBm.
    qint64 noise = 0;
    /// Channel number; 0 when the result carried no channel.
    qint64 channel = 0;
    /// MHz: 20, 40, 80 or 160; 0 when unknown.
    qint64 channelWidth = 0;
    /// "2.4 GHz", "5 GHz" or "Unknown".
    QString channelBand;
    /// Names of the supported security methods joined by ", ", or "None".
    QString security;
    /// The machine was joined to this access point when the record was built.
    bool isCurrentNetwork = false;
    /// Absent when not reported.
    std::optional<QString> countryCode;
    /// As reported, in units of 1024 microseconds; shown as milliseconds.
    qint64 beaconInterval = 0;
    /// An ad-hoc network.
    bool isIBSS = false;
    /// Names of the supported 802.11 PHY modes, in ascending order of their codes.
    QStringList isPhyModeSupported;
    /// The scan time of the cycle in which the record was built.
    TimePoint timestamp;
    /// As it stood when the record was last updated; the only field that changes once a record is built.
    SignalHistoryList signalHistory;

    /// The short security label and the name of the lock symbol, for a list row.
    [[nodiscard]] std::pair<QString, QString> securityInfo() const;

    friend bool operator==(const WiFiNetwork& a, const WiFiNetwork& b) { return a.bssid == b.bssid; }

    friend size_t qHash(const WiFiNetwork& network, size_t seed = 0) { return qHash(network.bssid, seed); }
};

using WiFiNetworkList = QList<WiFiNetwork>;

} // namespace aerolith

Q_DECLARE_METATYPE(aerolith::WiFiNetwork)
