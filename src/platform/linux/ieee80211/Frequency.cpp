#include "platform/linux/ieee80211/Frequency.h"

#include <array>

namespace aerolith::ieee80211 {

namespace {

/// A run of channels 5 MHz apart: number n lies at `zero` + 5 n MHz.
struct Raster
{
    Band band;
    std::uint32_t first;
    std::uint32_t last;
    std::uint32_t zero;
};

// Japan's channels 182 to 196 lie at 4910 to 4980 MHz, below the rest of the 5 GHz band. Channel 14 and
// channel 2 of 6 GHz lie outside the runs of their bands.
constexpr std::array rasters{
    Raster{Band::ghz2_4, 2412, 2472, 2407}, Raster{Band::ghz2_4, 2484, 2484, 2484 - 14 * 5},
    Raster{Band::ghz5, 4910, 4980, 4000},   Raster{Band::ghz5, 5005, 5920, 5000},
    Raster{Band::ghz6, 5935, 5935, 5925},   Raster{Band::ghz6, 5955, 7115, 5950},
};

const Raster* rasterOf(std::uint32_t frequency)
{
    for (const Raster& raster : rasters) {
        if (frequency >= raster.first && frequency <= raster.last && (frequency - raster.zero) % 5 == 0) {
            return &raster;
        }
    }
    return nullptr;
}

} // namespace

std::optional<Band> band(std::uint32_t frequency)
{
    const Raster* raster = rasterOf(frequency);
    return raster ? std::optional(raster->band) : std::nullopt;
}

std::optional<qint64> channelNumber(std::uint32_t frequency)
{
    const Raster* raster = rasterOf(frequency);
    return raster ? std::optional<qint64>((frequency - raster->zero) / 5) : std::nullopt;
}

} // namespace aerolith::ieee80211
