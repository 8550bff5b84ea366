#pragma once

#include <QtGlobal>

#include <cstdint>
#include <optional>

namespace aerolith::ieee80211 {

enum class Band
{
    ghz2_4,
    ghz5,
    ghz6
};

/// Band of a channel's centre frequency in MHz; absent outside these three.
[[nodiscard]] std::optional<Band> band(std::uint32_t frequency);

/// IEEE 802.11 number of the 20 MHz channel with this centre frequency in MHz; absent where no channel lies.
/// A number does not tell the band: those of 6 GHz (1 to 233) repeat those of the lower bands.
[[nodiscard]] std::optional<qint64> channelNumber(std::uint32_t frequency);

} // namespace aerolith::ieee80211
