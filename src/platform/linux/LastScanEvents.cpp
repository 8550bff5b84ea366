#include "platform/linux/LastScanEvents.h"

#include <thread>

namespace aerolith {

using nl80211::ScanEvent;
using nl80211::ScanStage;

LastScanEvents::LastScanEvents(ScanService& service, std::chrono::milliseconds interval)
    : m_service(service), m_interval(interval), m_lastScan(service.lastScan())
{
}

Result<std::optional<ScanEvent>> LastScanEvents::wait(Deadline deadline)
{
    if (m_endToTell) {
        m_endToTell = false;
        return std::optional(ScanEvent{.stage = ScanStage::finished});
    }
    for (;;) {
        const auto lastScan = m_service.lastScan();
        if (lastScan && lastScan != m_lastScan) {
            m_lastScan = lastScan;
            m_endToTell = true;
            return std::optional(ScanEvent{.stage = ScanStage::started});
        }
        if (Deadline::clock::now() >= deadline) {
            return std::optional<ScanEvent>();
        }
        std::this_thread::sleep_for(m_interval);
    }
}

} // namespace aerolith
