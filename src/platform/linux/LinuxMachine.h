#pragma once

#include "platform/Log.h"
#include "platform/Queues.h"
#include "platform/linux/LinuxHostAddresses.h"
#include "platform/linux/LinuxLocationManager.h"
#include "platform/linux/LinuxWiFiClient.h"
#include "platform/linux/xdg/XdgLoginItem.h"

namespace aerolith {

/// The machine that the program runs on. It outlives whatever uses it; log and main queue outlive it. Its
/// threads need an event loop on the main thread alone.
class LinuxMachine
{
public:
    /// Main thread. Blocks for what permission the user has, at most one second. `bus` is where
    /// NetworkManager is.
    LinuxMachine(Log& log, MainQueue& mainQueue, const BusAddress& bus = {});

    [[nodiscard]] CWWiFiClient& wifiClient() { return m_wifiClient; }

    [[nodiscard]] CLLocationManager& locationManager() { return m_locationManager; }

    [[nodiscard]] LoginItem& loginItem() { return m_loginItem; }

    [[nodiscard]] HostAddresses& hostAddresses() { return m_hostAddresses; }

    /// Ends the scans and joins that are under way, and every later one, within moments and whatever they
    /// wait for: to be called before a queue that scans is destroyed, which waits for its scan. Any thread.
    void stopScanning() { m_wifiClient.stopScanning(); }

private:
    LinuxWiFiClient m_wifiClient;
    LinuxLocationManager m_locationManager;
    XdgLoginItem m_loginItem;
    LinuxHostAddresses m_hostAddresses;
};

} // namespace aerolith
