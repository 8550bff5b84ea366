#pragma once

#include "platform/UserLocale.h"

namespace aerolith {

/// The user's locale from the environment: LC_ALL, else LC_COLLATE or LC_TIME, else LANG; "C" and nothing
/// count as English (United States).
[[nodiscard]] UserLocale environmentLocale();

} // namespace aerolith
