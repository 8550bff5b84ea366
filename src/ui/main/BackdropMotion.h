#pragma once

#include "platform/Queues.h"

namespace aerolith {

/// How the backdrop moves: every size and opacity as a function of the time since it appeared. Lengths are
/// device-independent pixels, scales are about the centre.
namespace BackdropMotion {

inline constexpr int ringCount = 4;
inline constexpr double ringLineWidth = 6;
/// By how much a ring's scale goes down and comes back.
inline constexpr double ringShrinkage = 0.15;

struct Ring
{
    /// Of the middle of its line, before scaling.
    double diameter = 0;
    /// Of diameter and line width.
    double scale = 1;
    double opacity = 1;
};

/// Ring `index`, from 0, the innermost. At time 0 it is as large and as clear as it gets.
[[nodiscard]] Ring ring(int index, Seconds time);

/// At time 0 the symbol is as small as it gets.
[[nodiscard]] double symbolScale(Seconds time);

inline constexpr double largestSymbolScale = 1.1;

} // namespace BackdropMotion

} // namespace aerolith
