#pragma once

namespace aerolith {

/// The user's choice of list order, in the order of the sort menu.
enum class SortOption
{
    signal,
    ssid,
    channel,
    security
};

} // namespace aerolith
