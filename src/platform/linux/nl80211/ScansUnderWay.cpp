#include "platform/linux/nl80211/ScansUnderWay.h"

namespace aerolith::nl80211 {

void ScansUnderWay::take(const ScanEvent& event, BootTime now)
{
    const std::lock_guard lock(m_mutex);
    if (event.stage == ScanStage::started) {
        m_starts[event.interfaceIndex] = now;
    } else {
        m_starts.erase(event.interfaceIndex);
    }
}

void ScansUnderWay::forgetAll()
{
    const std::lock_guard lock(m_mutex);
    m_starts.clear();
}

std::optional<BootTime> ScansUnderWay::since(std::uint32_t interfaceIndex) const
{
    const std::lock_guard lock(m_mutex);
    const auto start = m_starts.find(interfaceIndex);
    return start == m_starts.end() ? std::nullopt : std::optional(start->second);
}

} // namespace aerolith::nl80211
