#pragma once

#include "platform/CWWiFiClient.h"
#include "platform/DesktopServices.h"
#include "platform/Log.h"
#include "platform/UserDefaults.h"
#include "ui/detail/DetailSurroundings.h"

namespace aerolith {

/// What the main window asks of the program around it. All of it outlives the window.
struct WindowSurroundings
{
    UserDefaults& userDefaults;
    CWWiFiClient& wifiClient;
    DesktopServices desktop;
    Log& log;
    DetailSurroundings detail;
};

} // namespace aerolith
