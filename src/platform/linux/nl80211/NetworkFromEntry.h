#pragma once

#include "platform/CWNetwork.h"
#include "platform/linux/nl80211/BssEntry.h"

namespace aerolith::nl80211 {

/// What an entry says of its access point. The name is the entry's own; everything else in the elements is
/// taken from the newer of its two frames, as the access point may have changed since it last answered a
/// probe.
///
/// The signal is the whole dBm before the point, as `iw` prints it: -5550 hundredths are -55. From a radio
/// that only knows a quality in percent, 100 reads as -50 dBm and 0 as -100; from one that knows nothing as
/// -100.
[[nodiscard]] CWNetwork networkFromEntry(const BssEntry& entry);

} // namespace aerolith::nl80211
