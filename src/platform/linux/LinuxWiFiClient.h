#pragma once

#include "platform/CWWiFiClient.h"
#include "platform/linux/LinuxWireless.h"
#include "platform/linux/ScanWatch.h"

#include <memory>

namespace aerolith {

/// The machine's own Wi-Fi. The default interface is the first in the kernel's order that joins networks (as
/// a station or ad hoc), whatever NetworkManager makes of it.
class LinuxWiFiClient : public CWWiFiClient
{
public:
    /// Main thread, as for the destructor. `log` outlives this object and the interfaces it hands out. `bus`
    /// is where NetworkManager is, and `systemFiles` where sysfs is mounted.
    explicit LinuxWiFiClient(Log& log, BusAddress bus = {},
                             std::unique_ptr<nl80211::Nl80211> kernel = nl80211::makeNl80211(),
                             QString systemFiles = QStringLiteral("/sys"));

    [[nodiscard]] std::shared_ptr<CWInterface> interface() override;

    /// Ends the scans and joins that are under way, and every later one, within moments; they fail. Any
    /// thread.
    void stopScanning();

private:
    std::shared_ptr<LinuxWireless> m_wireless;
    ScanWatch m_scanWatch;
    /// Whether it has been logged that the kernel cannot be asked.
    std::atomic<bool> m_failureLogged = false;
};

} // namespace aerolith
