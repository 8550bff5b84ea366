#pragma once

#include "platform/simulated/Scenario.h"

#include <QLatin1StringView>

#include <array>
#include <utility>

namespace aerolith {

// What the choices of a scenario are called in its file.

inline constexpr std::array authorizationNames{
    std::pair{QLatin1StringView("notDetermined"), CLAuthorizationStatus::notDetermined},
    std::pair{QLatin1StringView("restricted"), CLAuthorizationStatus::restricted},
    std::pair{QLatin1StringView("denied"), CLAuthorizationStatus::denied},
    std::pair{QLatin1StringView("authorizedAlways"), CLAuthorizationStatus::authorizedAlways},
    std::pair{QLatin1StringView("authorized"), CLAuthorizationStatus::authorizedWhenInUse},
};

inline constexpr std::array afterLastNames{
    std::pair{QLatin1StringView("repeat"), AfterLast::repeat},
    std::pair{QLatin1StringView("loop"), AfterLast::loop},
};

} // namespace aerolith
