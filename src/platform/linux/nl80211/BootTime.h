#pragma once

#include <chrono>

namespace aerolith::nl80211 {

/// Time since boot, sleep included: the clock of BssEntry::lastSeenBootTime.
using BootTime = std::chrono::nanoseconds;

[[nodiscard]] BootTime bootTimeNow();

} // namespace aerolith::nl80211
