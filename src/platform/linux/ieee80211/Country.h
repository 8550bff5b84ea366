#pragma once

#include "platform/linux/ieee80211/Bytes.h"

#include <QString>

#include <optional>

namespace aerolith::ieee80211 {

/// The two letters of the country element, as sent; absent without one or where it has something else than
/// letters.
[[nodiscard]] std::optional<QString> countryLetters(Bytes elements);

} // namespace aerolith::ieee80211
