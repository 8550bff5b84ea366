#pragma once

#include "model/WiFiNetwork.h"

namespace aerolith {

/// The record's short security label, in the user's language.
[[nodiscard]] QString securityText(const WiFiNetwork& network);

/// The record's band, in the user's language.
[[nodiscard]] QString bandText(const WiFiNetwork& network);

/// Between the parts of a text that is read out.
[[nodiscard]] QString listSeparator();

} // namespace aerolith
