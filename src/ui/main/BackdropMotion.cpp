#include "ui/main/BackdropMotion.h"

#include "ui/common/EaseInOut.h"

#include <QEasingCurve>

#include <algorithm>
#include <cmath>

namespace aerolith::BackdropMotion {

namespace {

constexpr Seconds ringPeriod{2.5};
constexpr Seconds ringDelay{0.3};
constexpr Seconds symbolPeriod{1.5};
constexpr double smallestSymbolScale = 0.95;

/// From 0 to 1 in one period, back in the next, and so on; 0 before it starts.
double thereAndBack(Seconds time, Seconds period)
{
    const double phase = std::fmod(std::max(time / period, 0.0), 2.0);
    return easeInOut().valueForProgress(phase <= 1 ? phase : 2 - phase);
}

} // namespace

Ring ring(int index, Seconds time)
{
    const double gone = thereAndBack(time - index * ringDelay, ringPeriod);
    return {.diameter = 320.0 + 40 * index,
            .scale = 1.0 + 0.05 * index - ringShrinkage * gone,
            .opacity = 1 - gone};
}

double symbolScale(Seconds time)
{
    return std::lerp(smallestSymbolScale, largestSymbolScale, thereAndBack(time, symbolPeriod));
}

} // namespace aerolith::BackdropMotion
