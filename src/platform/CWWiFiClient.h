#pragma once

#include "platform/CWInterface.h"

#include <memory>

namespace aerolith {

/// The process's access to the Wi-Fi hardware. Any thread.
class CWWiFiClient
{
public:
    CWWiFiClient() = default;
    CWWiFiClient(const CWWiFiClient&) = delete;
    CWWiFiClient& operator=(const CWWiFiClient&) = delete;
    virtual ~CWWiFiClient() = default;

    /// The default Wi-Fi interface as things are now, or null when the machine has none. The object stays
    /// valid for as long as it is held, also when the hardware goes away: its operations then fail or answer
    /// "absent". Blocks for one local request.
    [[nodiscard]] virtual std::shared_ptr<CWInterface> interface() = 0;
};

} // namespace aerolith
