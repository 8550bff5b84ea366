#pragma once

#include "platform/Clock.h"

namespace aerolith {

class SystemClock : public Clock
{
public:
    [[nodiscard]] TimePoint now() const override { return std::chrono::system_clock::now(); }
};

} // namespace aerolith
