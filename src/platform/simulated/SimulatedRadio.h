#pragma once

#include "platform/simulated/Scenario.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "platform/simulated/SimulatedInterface.h"
#include "platform/simulated/SimulatedLocationManager.h"
#include "platform/simulated/SimulatedWiFiClient.h"

namespace aerolith {

/// A machine that follows a scenario, to be plugged in where the real one would be. It outlives whatever uses
/// it; the main queue outlives it.
class SimulatedRadio
{
public:
    /// Main thread. The scenario has at least one cycle.
    SimulatedRadio(const Scenario& scenario, MainQueue& mainQueue);
    SimulatedRadio(const SimulatedRadio&) = delete;
    SimulatedRadio& operator=(const SimulatedRadio&) = delete;
    ~SimulatedRadio();

    [[nodiscard]] CWWiFiClient& wifiClient() { return m_wifiClient; }

    [[nodiscard]] CLLocationManager& locationManager() { return m_locationManager; }

    [[nodiscard]] LoginItem& loginItem() { return m_loginItem; }

    [[nodiscard]] HostAddresses& hostAddresses() { return m_hostAddresses; }

    /// Ends the scans that are under way, and every later one, at once: to be called before a queue that
    /// scans is destroyed, which waits for its scan. Any thread.
    void stopScanning();

private:
    const SharedAuthorization m_authorization;
    const std::shared_ptr<SimulatedInterface> m_interface;
    SimulatedWiFiClient m_wifiClient;
    SimulatedLocationManager m_locationManager;
    SimulatedLoginItem m_loginItem;
    SimulatedHostAddresses m_hostAddresses;
};

} // namespace aerolith
