#pragma once

#include "platform/UserDefaults.h"
#include "ui/detail/DetailSurroundings.h"

namespace aerolith {

/// What the main window asks of the program around it. All of it outlives the window.
struct WindowSurroundings
{
    UserDefaults& userDefaults;
    DetailSurroundings detail;
};

} // namespace aerolith
