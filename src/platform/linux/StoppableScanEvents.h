#pragma once

#include "platform/linux/nl80211/BootTime.h"
#include "platform/linux/nl80211/Nl80211.h"

#include <atomic>
#include <chrono>
#include <memory>

namespace aerolith {

/// Scan events whose wait another thread can end, and during which the windows stay alive: a wait on the main
/// thread handles its events, all but the user's input, and ends when the application quits.
class StoppableScanEvents : public nl80211::ScanEvents
{
public:
    /// The kernel forgets what it has not heard for 30 seconds, of which a scan may take half.
    static constexpr std::chrono::seconds usualStall{15};

    /// `stopped` outlives this object.
    StoppableScanEvents(std::shared_ptr<nl80211::ScanEvents> events, const std::atomic<bool>& stopped,
                        nl80211::BootTime longestStall = usualStall);

    /// Also fails within a tenth of a second after `stopped` has been set, and where the program has stood
    /// still for longer than the longest stall, asleep with the machine or stopped: what the scan found is
    /// gone by then.
    [[nodiscard]] Result<std::optional<nl80211::ScanEvent>> wait(Deadline deadline) override;

private:
    std::shared_ptr<nl80211::ScanEvents> m_events;
    const std::atomic<bool>& m_stopped;
    const nl80211::BootTime m_longestStall;
};

} // namespace aerolith
