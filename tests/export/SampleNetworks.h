#pragma once

#include "model/WiFiNetwork.h"

namespace aerolith {

/// 2026-11-16 18:21:48 in New York, and a quarter of a second.
inline constexpr TimePoint sampleTime{std::chrono::milliseconds(1'794'871'308'250)};

/// The network that the machine is joined to, with three samples ten seconds apart.
inline WiFiNetwork harborLoft()
{
    WiFiNetwork network;
    network.ssid = QStringLiteral("Harbor Loft");
    network.ssidBytes = "Harbor Loft";
    network.bssid = QStringLiteral("0a:1b:2c:3d:4e:5f");
    network.rssi = -58;
    network.noise = -90;
    network.channel = 36;
    network.channelWidth = 80;
    network.channelBand = QStringLiteral("5 GHz");
    network.security = QStringLiteral("WPA2, Personal");
    network.isCurrentNetwork = true;
    network.countryCode = QStringLiteral("US");
    network.beaconInterval = 100;
    network.isPhyModeSupported = {QStringLiteral("802.11a"), QStringLiteral("802.11n"),
                                  QStringLiteral("802.11ac")};
    network.timestamp = sampleTime;
    for (const qint64 step : {2, 1, 0}) {
        const SignalHistory sample{.id = {},
                                   .timestamp = sampleTime - std::chrono::seconds(10 * step),
                                   .rssi = -58 - step,
                                   .noise = -90};
        network.signalHistory = network.signalHistory.appended(sample, 3);
    }
    return network;
}

inline WiFiNetwork cornerCafe()
{
    WiFiNetwork network;
    network.ssid = QStringLiteral("Corner Cafe");
    network.ssidBytes = "Corner Cafe";
    network.bssid = QStringLiteral("12:34:56:78:9a:bc");
    network.rssi = -71;
    network.noise = -90;
    network.channel = 6;
    network.channelBand = QStringLiteral("2.4 GHz");
    network.security = QStringLiteral("None");
    return network;
}

} // namespace aerolith
