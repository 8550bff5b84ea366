#pragma once

#include "platform/linux/ScanService.h"
#include "platform/linux/nl80211/Nl80211.h"

#include <chrono>

namespace aerolith {

/// Stands in for the kernel's scan events where those cannot be had: asks the service again and again when
/// its newest scan ended. Every end that it sees counts as that of a scan begun since.
class LastScanEvents : public nl80211::ScanEvents
{
public:
    /// `service` outlives this object.
    LastScanEvents(ScanService& service, std::chrono::milliseconds interval);

    [[nodiscard]] Result<std::optional<nl80211::ScanEvent>> wait(Deadline deadline) override;

private:
    ScanService& m_service;
    std::chrono::milliseconds m_interval;
    std::optional<nl80211::BootTime> m_lastScan;
    bool m_endToTell = false;
};

} // namespace aerolith
