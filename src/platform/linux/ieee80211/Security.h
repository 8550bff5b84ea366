#pragma once

#include "platform/CWNetwork.h"
#include "platform/linux/ieee80211/Bytes.h"

#include <cstdint>

namespace aerolith::ieee80211 {

/// Codes (CWSecurity) of the security methods that an access point offers, from its RSN element, its WPA
/// element and the privacy bit of its capability field. Empty when it has one of the elements but none of the
/// methods in it are known.
[[nodiscard]] CodeSet securityCodes(Bytes elements, std::uint16_t capability);

} // namespace aerolith::ieee80211
