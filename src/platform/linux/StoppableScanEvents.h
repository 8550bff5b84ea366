#pragma once

#include "platform/linux/nl80211/Nl80211.h"

#include <atomic>
#include <memory>

namespace aerolith {

/// Scan events whose wait another thread can end, and during which the windows stay alive: a wait on the main
/// thread handles its events, all but the user's input, and ends when the application quits.
class StoppableScanEvents : public nl80211::ScanEvents
{
public:
    /// `stopped` outlives this object.
    StoppableScanEvents(std::shared_ptr<nl80211::ScanEvents> events, const std::atomic<bool>& stopped);

    /// Also fails within a tenth of a second after `stopped` has been set.
    [[nodiscard]] Result<std::optional<nl80211::ScanEvent>> wait(Deadline deadline) override;

private:
    std::shared_ptr<nl80211::ScanEvents> m_events;
    const std::atomic<bool>& m_stopped;
};

} // namespace aerolith
