#pragma once

#include "platform/CWWiFiClient.h"

#include <memory>

namespace aerolith {

class SimulatedInterface;

/// A machine whose one Wi-Fi interface comes and goes as it is plugged in.
class SimulatedWiFiClient final : public CWWiFiClient
{
public:
    explicit SimulatedWiFiClient(std::shared_ptr<SimulatedInterface> interface);

    [[nodiscard]] std::shared_ptr<CWInterface> interface() override;

private:
    const std::shared_ptr<SimulatedInterface> m_interface;
};

} // namespace aerolith
