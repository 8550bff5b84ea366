#include "platform/simulated/SimulatedRadio.h"

namespace aerolith {

SimulatedRadio::SimulatedRadio(const Scenario& scenario, MainQueue& mainQueue)
    : m_authorization(std::make_shared<std::atomic<CLAuthorizationStatus>>(scenario.authorization))
    , m_interface(std::make_shared<SimulatedInterface>(scenario, m_authorization))
    , m_wifiClient(m_interface)
    , m_locationManager(m_authorization, scenario.answer, mainQueue)
{
}

SimulatedRadio::~SimulatedRadio()
{
    stopScanning();
}

void SimulatedRadio::stopScanning()
{
    m_interface->stopScanning();
}

} // namespace aerolith
