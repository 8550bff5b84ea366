#include "platform/linux/nl80211/Sightings.h"

#include "platform/linux/ieee80211/Ssid.h"
#include "platform/linux/nl80211/NetworkFromEntry.h"

#include <algorithm>
#include <vector>

namespace aerolith::nl80211 {

namespace {

struct Candidate
{
    const BssEntry* entry;
    BootTime heard;
    bool named;
};

std::optional<BootTime> whenHeard(const BssEntry& entry, BootTime dumped)
{
    if (entry.lastSeenBootTime) {
        return BootTime(static_cast<BootTime::rep>(*entry.lastSeenBootTime));
    }
    if (entry.seenMillisecondsAgo) {
        return dumped - std::chrono::milliseconds(*entry.seenMillisecondsAgo);
    }
    return {};
}

/// The order of the addresses, and for each the candidate to choose first.
bool comesBefore(const Candidate& left, const Candidate& right)
{
    if (left.entry->address != right.entry->address) {
        return left.entry->address < right.entry->address;
    }
    return left.named != right.named ? left.named : left.heard > right.heard;
}

bool haveOneAddress(const Candidate& left, const Candidate& right)
{
    return left.entry->address == right.entry->address;
}

bool namesNothing(const QByteArray& elements)
{
    return !elements.isEmpty() && ieee80211::ssidBytes(bytesOf(elements)).isEmpty();
}

} // namespace

QList<CWNetwork> sightings(const QList<BssEntry>& entries, BootTime scanStarted, BootTime dumped,
                           const std::optional<QByteArray>& ssid)
{
    std::vector<Candidate> candidates;
    for (const BssEntry& entry : entries) {
        const auto heard = whenHeard(entry, dumped);
        if (!entry.address || !heard || *heard < scanStarted) {
            continue;
        }
        const QByteArray name = ieee80211::ssidBytes(bytesOf(entry.elements));
        if (!ssid || name == *ssid) {
            candidates.push_back({&entry, *heard, !name.isEmpty()});
        }
    }
    std::stable_sort(candidates.begin(), candidates.end(), comesBefore);
    candidates.erase(std::unique(candidates.begin(), candidates.end(), haveOneAddress), candidates.end());

    QList<CWNetwork> networks;
    networks.reserve(static_cast<qsizetype>(candidates.size()));
    for (const Candidate& candidate : candidates) {
        networks.append(networkFromEntry(*candidate.entry));
    }
    return networks;
}

bool hidesName(const QList<BssEntry>& entries, const QString& address)
{
    return std::ranges::any_of(entries, [&](const BssEntry& entry) {
        return entry.address && ieee80211::addressText(*entry.address) == address &&
               (namesNothing(entry.elements) || namesNothing(entry.beaconElements));
    });
}

} // namespace aerolith::nl80211
