#pragma once

#include "platform/Result.h"
#include "platform/linux/networkmanager/NetworkManager.h"

#include <QString>

namespace aerolith {

/// What keeps the interface from doing anything at NetworkManager's hands as things are now: the radio is
/// off, the interface gone or not available, NetworkManager does not answer. Nothing where nothing does.
[[nodiscard]] Failure deviceObstacle(const NetworkManager& manager, const QString& interfaceName);

} // namespace aerolith
