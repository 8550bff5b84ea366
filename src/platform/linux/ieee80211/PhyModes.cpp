#include "platform/linux/ieee80211/PhyModes.h"

#include "platform/linux/ieee80211/Elements.h"

#include <algorithm>
#include <array>

namespace aerolith::ieee80211 {

namespace {

// In units of 500 kbit/s. What else stands among the rates (122 to 127) asks for a feature and is no rate.
constexpr std::array<std::uint8_t, 4> dsssRates{2, 4, 11, 22};
constexpr std::array<std::uint8_t, 8> ofdmRates{12, 18, 24, 36, 48, 72, 96, 108};
constexpr std::uint8_t rateBits = 0x7f;

bool hasRateOf(Bytes elements, ElementId id, Bytes rates)
{
    const auto offered = findElement(elements, id);
    return offered && std::any_of(offered->begin(), offered->end(), [rates](std::uint8_t rate) {
               return std::find(rates.begin(), rates.end(), rate & rateBits) != rates.end();
           });
}

bool offersRateOf(Bytes elements, Bytes rates)
{
    return hasRateOf(elements, ElementId::supportedRates, rates) ||
           hasRateOf(elements, ElementId::extendedSupportedRates, rates);
}

} // namespace

CodeSet phyModes(Bytes elements, std::optional<Band> band)
{
    CodeSet modes;
    const auto offer = [&modes](CWPHYMode mode, bool offered) {
        if (offered) {
            modes.insert(static_cast<int>(mode));
        }
    };
    const bool ofdm = offersRateOf(elements, ofdmRates);
    offer(CWPHYMode::dot11a, ofdm && band == Band::ghz5);
    offer(CWPHYMode::dot11b, offersRateOf(elements, dsssRates));
    offer(CWPHYMode::dot11g, ofdm && band == Band::ghz2_4);
    offer(CWPHYMode::dot11n, findElement(elements, ElementId::htCapabilities, 26).has_value());
    offer(CWPHYMode::dot11ac, findElement(elements, ElementId::vhtCapabilities, 12).has_value());
    offer(CWPHYMode::dot11ax, findElement(elements, ExtensionId::heCapabilities, 21).has_value());
    return modes;
}

} // namespace aerolith::ieee80211
