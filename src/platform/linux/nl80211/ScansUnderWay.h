#pragma once

#include "platform/linux/nl80211/BootTime.h"
#include "platform/linux/nl80211/ScanEvent.h"

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>

namespace aerolith::nl80211 {

/// Since when each interface scans, whoever asked for it. An event has no time of its own and may be read
/// late: all that is certain is that it is younger than the moment when nothing more was to be read. Any
/// thread.
class ScansUnderWay
{
public:
    /// All events until then have been taken.
    void allTakenUntil(BootTime time);

    void take(const ScanEvent& event);

    /// For when events were missed.
    void forgetAll();

    /// Not before then did the interface's scan begin, be it under way or one whose event is yet to be taken;
    /// absent before the interface's first event.
    [[nodiscard]] std::optional<BootTime> since(std::uint32_t interfaceIndex) const;

private:
    mutable std::mutex m_mutex;
    BootTime m_allTakenUntil = BootTime::min();
    /// By interface; absent between two scans.
    std::map<std::uint32_t, std::optional<BootTime>> m_starts;
};

} // namespace aerolith::nl80211
