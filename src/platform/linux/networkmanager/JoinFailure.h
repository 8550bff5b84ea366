#pragma once

#include "platform/CWNetwork.h"
#include "platform/Result.h"
#include "platform/linux/networkmanager/Activation.h"

namespace aerolith {

/// Why an attempt to join the network did not end in success, as a person would say it. `stillHeard` is
/// whether the network was heard while the attempt lasted: NetworkManager does not tell a network that has
/// gone from one that refuses.
[[nodiscard]] Error joinFailure(const ActivationEnd& end, const CWNetwork& network, bool stillHeard);

} // namespace aerolith
