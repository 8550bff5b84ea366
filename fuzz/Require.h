#pragma once

#include <cstdlib>

namespace aerolith {

/// Ends a fuzz run as a finding where something that must hold for every input does not.
inline void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

} // namespace aerolith
