#pragma once

#include <QString>

#include <array>
#include <cstdint>

namespace aerolith::ieee80211 {

using HardwareAddress = std::array<std::uint8_t, 6>;

/// Lower-case hexadecimal with colons.
[[nodiscard]] QString addressText(const HardwareAddress& address);

} // namespace aerolith::ieee80211
