#pragma once

#include "model/BssidMap.h"
#include "model/IdentifierSource.h"
#include "model/WiFiNetwork.h"
#include "platform/CWNetwork.h"

#include <functional>
#include <optional>

namespace aerolith {

/// What is known of every access point heard since the start or since the last clear. After a cycle has been
/// merged and applied the three maps have the same keys, and every record's `signalHistory` is its list in
/// `networkHistory`.
struct AccessPoints
{
    BssidMap<WiFiNetwork> allNetworks;
    /// One sample per cycle since the access point was first heard, bounded by the history limit.
    BssidMap<SignalHistoryList> networkHistory;
    /// The scan time of the last cycle in which the access point was heard.
    BssidMap<TimePoint> lastSeenTimestamp;
};

/// What one scan cycle brings to the merge.
struct ScanCycle
{
    QList<CWNetwork> results;
    TimePoint scanTime;
    /// The access point that the machine is joined to; absent when there is none.
    std::optional<QString> currentBSSID;
};

/// Merges one cycle: a fresh record and a real sample for every accepted result, a missed sample for every
/// other known access point, every history cut to `historyLimit`, which is asked each time a history is cut;
/// below 0 it counts as 0. The access points known before the merge are those of `known.allNetworks`. All
/// three maps of the outcome have the same keys.
[[nodiscard]] AccessPoints mergeScan(const AccessPoints& known, const ScanCycle& cycle,
                                     const std::function<qint64()>& historyLimit,
                                     IdentifierSource& identifiers);

} // namespace aerolith
