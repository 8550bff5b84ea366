#pragma once

#include "platform/CWNetwork.h"
#include "platform/linux/ieee80211/Bytes.h"
#include "platform/linux/ieee80211/Frequency.h"

#include <optional>

namespace aerolith::ieee80211 {

/// Codes (CWPHYMode) of the modes that an access point in this band offers, from its rates and capability
/// elements.
[[nodiscard]] CodeSet phyModes(Bytes elements, std::optional<Band> band);

} // namespace aerolith::ieee80211
