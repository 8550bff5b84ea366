#pragma once

#include "platform/CWWiFiClient.h"
#include "platform/Log.h"
#include "platform/Queues.h"
#include "platform/Workspace.h"
#include "ui/menubar/StatusItem.h"

#include <functional>
#include <memory>

namespace aerolith {

/// What the status item and its popover ask of the program around them. All of it outlives them.
struct MenuSurroundings
{
    CWWiFiClient& wifiClient;
    MainQueue& mainQueue;
    Workspace& workspace;
    Log& log;
    /// Brings the main window to the front, hidden or not.
    std::function<void()> openMainWindow;
    std::function<std::unique_ptr<StatusItem>()> makeStatusItem;
};

} // namespace aerolith
