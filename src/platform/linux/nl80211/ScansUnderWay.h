#pragma once

#include "platform/linux/nl80211/BootTime.h"
#include "platform/linux/nl80211/ScanEvent.h"

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>

namespace aerolith::nl80211 {

/// The scans that have begun and not ended, whoever asked for them. Any thread.
class ScansUnderWay
{
public:
    void take(const ScanEvent& event, BootTime now);

    /// For when events were missed.
    void forgetAll();

    /// Not before then did the interface's scan begin that is under way; absent where none is known.
    [[nodiscard]] std::optional<BootTime> since(std::uint32_t interfaceIndex) const;

private:
    mutable std::mutex m_mutex;
    std::map<std::uint32_t, BootTime> m_starts;
};

} // namespace aerolith::nl80211
