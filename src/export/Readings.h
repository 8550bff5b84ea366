#pragma once

#include "model/WiFiNetwork.h"

#include <QString>

namespace aerolith {

// Readings as reports and the details have them, the same in every language.

/// "-48 dBm".
[[nodiscard]] inline QString withUnit(qint64 number, QLatin1StringView unit)
{
    return QString::number(number) + u' ' + unit;
}

/// Decibels between the signal and the noise.
[[nodiscard]] inline qint64 signalToNoise(const WiFiNetwork& network)
{
    return network.rssi - network.noise;
}

[[nodiscard]] inline QString networkType(const WiFiNetwork& network)
{
    return network.isIBSS ? QStringLiteral("Ad-Hoc") : QStringLiteral("Infrastructure");
}

/// "802.11n, 802.11ac".
[[nodiscard]] inline QString phyModesText(const WiFiNetwork& network)
{
    return network.isPhyModeSupported.join(QStringLiteral(", "));
}

} // namespace aerolith
