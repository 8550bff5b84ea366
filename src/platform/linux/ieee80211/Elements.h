#pragma once

#include "platform/linux/ieee80211/Bytes.h"

#include <array>
#include <cstdint>
#include <optional>

namespace aerolith::ieee80211 {

/// Information elements: what a beacon or probe response says after its fixed fields, as identifier, length
/// and body. They come from the air, so any of them may be cut short, repeated or wrong. The functions here
/// take what is sound and pass over the rest.
enum class ElementId : std::uint8_t
{
    ssid = 0,
    supportedRates = 1,
    country = 7,
    htCapabilities = 45,
    rsn = 48,
    extendedSupportedRates = 50,
    htOperation = 61,
    vhtCapabilities = 191,
    vhtOperation = 192,
    vendorSpecific = 221,
    extension = 255,
};

/// What an element with the identifier `extension` is, by the first byte of its body.
enum class ExtensionId : std::uint8_t
{
    heCapabilities = 35,
    heOperation = 36,
    ehtOperation = 106
};

/// Organisation (three bytes) and its own type (one byte) at the start of a vendor-specific element's body.
using VendorType = std::array<std::uint8_t, 4>;

/// Body of the first such element that has at least `minimum` bytes.
[[nodiscard]] std::optional<Bytes> findElement(Bytes elements, ElementId id, std::size_t minimum = 0);

/// The same for an extended element; the body begins after the extension identifier.
[[nodiscard]] std::optional<Bytes> findElement(Bytes elements, ExtensionId id, std::size_t minimum);

/// The same for a vendor-specific element; the body begins after the vendor type.
[[nodiscard]] std::optional<Bytes> findElement(Bytes elements, const VendorType& type);

} // namespace aerolith::ieee80211
