#pragma once

#include "model/BssidMap.h"

namespace aerolith {

/// In the order in which the map is walked.
template <typename Value>
[[nodiscard]] QStringList bssidsOf(const BssidMap<Value>& map)
{
    QStringList bssids;
    for (const auto entry : map) {
        bssids.append(entry.bssid);
    }
    return bssids;
}

} // namespace aerolith
