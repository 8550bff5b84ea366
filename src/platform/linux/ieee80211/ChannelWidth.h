#pragma once

#include "platform/CWChannel.h"
#include "platform/linux/ieee80211/Bytes.h"

namespace aerolith::ieee80211 {

/// Width of the channel that an access point operates on, from the newest of its operation elements: EHT, HE
/// for 6 GHz, VHT, HE, HT; 20 MHz without any. Two channels of 80 MHz count as 160, the spectrum that they
/// take; 320 MHz is `unknown`.
[[nodiscard]] CWChannelWidth channelWidth(Bytes elements);

} // namespace aerolith::ieee80211
