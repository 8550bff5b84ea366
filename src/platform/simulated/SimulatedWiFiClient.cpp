#include "platform/simulated/SimulatedWiFiClient.h"

#include "platform/simulated/SimulatedInterface.h"

#include <utility>

namespace aerolith {

SimulatedWiFiClient::SimulatedWiFiClient(std::shared_ptr<SimulatedInterface> interface)
    : m_interface(std::move(interface))
{
}

std::shared_ptr<CWInterface> SimulatedWiFiClient::interface()
{
    return m_interface->isPluggedIn() ? m_interface : nullptr;
}

} // namespace aerolith
