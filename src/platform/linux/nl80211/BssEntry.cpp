#include "platform/linux/nl80211/BssEntry.h"

#include "platform/linux/nl80211/Attributes.h"
#include "platform/linux/nl80211/Messages.h"

#include <linux/nl80211.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace aerolith::nl80211 {

namespace {

Failure readBssAttribute(const Attribute& attribute, BssEntry& entry)
{
    switch (attribute.type) {
    case NL80211_BSS_BSSID:
        return readValue(attribute, entry.address);
    case NL80211_BSS_FREQUENCY:
        return readValue(attribute, entry.frequency);
    case NL80211_BSS_TSF:
        return readValue(attribute, entry.clock);
    case NL80211_BSS_BEACON_INTERVAL:
        return readValue(attribute, entry.beaconInterval);
    case NL80211_BSS_CAPABILITY:
        return readValue(attribute, entry.capability);
    case NL80211_BSS_INFORMATION_ELEMENTS:
        entry.elements = byteArray(attribute.payload);
        return {};
    case NL80211_BSS_SIGNAL_MBM:
        return readValue(attribute, entry.signal);
    case NL80211_BSS_SIGNAL_UNSPEC:
        return readValue(attribute, entry.signalQuality);
    case NL80211_BSS_STATUS:
        return readValue(attribute, entry.status);
    case NL80211_BSS_SEEN_MS_AGO:
        return readValue(attribute, entry.seenMillisecondsAgo);
    case NL80211_BSS_BEACON_IES:
        entry.beaconElements = byteArray(attribute.payload);
        return {};
    case NL80211_BSS_BEACON_TSF:
        return readValue(attribute, entry.beaconClock);
    case NL80211_BSS_LAST_SEEN_BOOTTIME:
        return readValue(attribute, entry.lastSeenBootTime);
    default:
        return {};
    }
}

} // namespace

Result<QList<BssEntry>> decodeBssEntries(Bytes dump)
{
    QList<BssEntry> entries;
    const auto visit = [&entries](const Attribute& attribute) -> Failure {
        if (attribute.type != NL80211_ATTR_BSS) {
            return {};
        }
        BssEntry& entry = entries.emplaceBack();
        return visitAttributes(attribute.payload, "an access point's entry"_L1,
                               [&entry](const Attribute& part) { return readBssAttribute(part, entry); });
    };
    if (Failure failure = visitMessages(
            dump, NL80211_CMD_NEW_SCAN_RESULTS, "a scan result"_L1, [] {}, visit)) {
        return *failure;
    }
    return entries;
}

const BssEntry* joinedEntry(const QList<BssEntry>& entries)
{
    const auto joined = std::find_if(entries.begin(), entries.end(), [](const BssEntry& entry) {
        const bool associated = entry.status == NL80211_BSS_STATUS_ASSOCIATED;
        const bool inAdHocNetwork = entry.status == NL80211_BSS_STATUS_IBSS_JOINED;
        return associated || inAdHocNetwork;
    });
    return joined == entries.end() ? nullptr : &*joined;
}

} // namespace aerolith::nl80211
