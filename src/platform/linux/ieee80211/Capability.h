#pragma once

#include <cstdint>

namespace aerolith::ieee80211 {

/// Bits of the capability field, one of a beacon's fixed fields.
enum Capability : std::uint16_t
{
    capabilityIbss = 1 << 1,
    capabilityPrivacy = 1 << 4,
};

} // namespace aerolith::ieee80211
