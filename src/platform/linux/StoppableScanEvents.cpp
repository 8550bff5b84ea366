#include "platform/linux/StoppableScanEvents.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;
using nl80211::ScanEvent;

StoppableScanEvents::StoppableScanEvents(std::shared_ptr<nl80211::ScanEvents> events,
                                         const std::atomic<bool>& stopped)
    : m_events(std::move(events)), m_stopped(stopped)
{
}

Result<std::optional<ScanEvent>> StoppableScanEvents::wait(Deadline deadline)
{
    while (!m_stopped) {
        const auto turn = std::min(deadline, Deadline::clock::now() + std::chrono::milliseconds(100));
        const auto event = m_events->wait(turn);
        if (!event.ok() || event.value() || turn == deadline) {
            return event;
        }
    }
    return Error{u"The Wi-Fi scan was stopped"_s};
}

} // namespace aerolith
