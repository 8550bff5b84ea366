#pragma once

#include <chrono>

namespace aerolith {

/// A moment of wall-clock time, to the nanosecond.
using TimePoint = std::chrono::sys_time<std::chrono::nanoseconds>;

/// Any thread.
class Clock
{
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    /// The user may set the clock: later calls can return earlier times.
    [[nodiscard]] virtual TimePoint now() const = 0;
};

} // namespace aerolith
