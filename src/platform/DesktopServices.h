#pragma once

#include "platform/HostAddresses.h"
#include "platform/LoginItem.h"
#include "platform/Workspace.h"

namespace aerolith {

/// What the windows ask of their surroundings beside what the engine asks (Surroundings). All of it outlives
/// the windows.
struct DesktopServices
{
    LoginItem& loginItem;
    Workspace& workspace;
    HostAddresses& hostAddresses;
};

} // namespace aerolith
