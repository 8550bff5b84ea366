#include "platform/linux/nl80211/ScansUnderWay.h"

namespace aerolith::nl80211 {

void ScansUnderWay::allTakenUntil(BootTime time)
{
    const std::lock_guard lock(m_mutex);
    m_allTakenUntil = time;
}

void ScansUnderWay::take(const ScanEvent& event)
{
    const std::lock_guard lock(m_mutex);
    m_starts[event.interfaceIndex] =
        event.stage == ScanStage::started ? std::optional(m_allTakenUntil) : std::nullopt;
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
    return start == m_starts.end() ? std::nullopt : std::optional(start->second.value_or(m_allTakenUntil));
}

} // namespace aerolith::nl80211
