#pragma once

#include "model/Collation.h"
#include "model/SortOption.h"
#include "model/WiFiNetwork.h"

namespace aerolith {

/// The order that a completed scan gives the list: the joined network first, then the strongest first.
/// Stable.
[[nodiscard]] WiFiNetworkList inScanOrder(WiFiNetworkList networks);

/// The order that the user chose: the joined network first, then by the option. Stable: what is equal under
/// the option keeps its order.
[[nodiscard]] WiFiNetworkList inOptionOrder(WiFiNetworkList networks, SortOption option,
                                            const Collation& collation);

} // namespace aerolith
