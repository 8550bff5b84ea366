#include "platform/linux/nl80211/NetworkFromEntry.h"

#include "platform/linux/ieee80211/Capability.h"
#include "platform/linux/ieee80211/ChannelWidth.h"
#include "platform/linux/ieee80211/Country.h"
#include "platform/linux/ieee80211/Frequency.h"
#include "platform/linux/ieee80211/PhyModes.h"
#include "platform/linux/ieee80211/Security.h"
#include "platform/linux/ieee80211/Ssid.h"

#include <algorithm>

namespace aerolith::nl80211 {

namespace {

Bytes newestElements(const BssEntry& entry)
{
    const bool beaconIsNewer = !entry.beaconElements.isEmpty() && entry.beaconClock.value_or(0) > entry.clock;
    return bytesOf(beaconIsNewer || entry.elements.isEmpty() ? entry.beaconElements : entry.elements);
}

qint64 signalStrength(const BssEntry& entry)
{
    constexpr qint64 weakest = -100;
    if (entry.signal) {
        return *entry.signal / 100;
    }
    return weakest + std::min<qint64>(entry.signalQuality.value_or(0), 100) / 2;
}

std::optional<CWChannel> channel(const BssEntry& entry, Bytes elements)
{
    const auto number = ieee80211::channelNumber(entry.frequency);
    if (!number) {
        return {};
    }
    return CWChannel{*number, static_cast<int>(ieee80211::channelWidth(elements))};
}

} // namespace

CWNetwork networkFromEntry(const BssEntry& entry)
{
    const Bytes elements = newestElements(entry);
    CWNetwork network;
    if (entry.address) {
        network.bssid = ieee80211::addressText(*entry.address);
    }
    network.ssidData = ieee80211::ssidBytes(bytesOf(entry.elements));
    network.ssid = ieee80211::ssidText(network.ssidData);
    network.rssiValue = signalStrength(entry);
    network.wlanChannel = channel(entry, elements);
    network.countryCode = ieee80211::countryLetters(elements);
    network.beaconInterval = entry.beaconInterval;
    network.ibss = (entry.capability & ieee80211::capabilityIbss) != 0;
    network.securityCodes = ieee80211::securityCodes(elements, entry.capability);
    network.phyModeCodes = ieee80211::phyModes(elements, ieee80211::band(entry.frequency));
    return network;
}

} // namespace aerolith::nl80211
