#include "platform/linux/StoppableScanEvents.h"

#include "platform/linux/networkmanager/AwaitCall.h"
#include "platform/linux/networkmanager/MainThread.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nl80211::ScanEvent;

namespace {

constexpr auto interval = 100ms;

} // namespace

StoppableScanEvents::StoppableScanEvents(std::shared_ptr<nl80211::ScanEvents> events,
                                         const std::atomic<bool>& stopped, nl80211::BootTime longestStall)
    : m_events(std::move(events)), m_stopped(stopped), m_longestStall(longestStall)
{
}

Result<std::optional<ScanEvent>> StoppableScanEvents::wait(Deadline deadline)
{
    auto lastTurn = nl80211::bootTimeNow();
    while (!m_stopped && (!isMainThread() || pause(0ms, m_stopped))) {
        const auto turn = std::min(deadline, Deadline::clock::now() + interval);
        const auto event = m_events->wait(turn);
        const auto now = nl80211::bootTimeNow();
        if (now - std::exchange(lastTurn, now) > m_longestStall) {
            return Error{u"The machine or the program stood still during the Wi-Fi scan"_s};
        }
        if (!event.ok() || event.value() || turn == deadline) {
            return event;
        }
    }
    return Error{u"The Wi-Fi scan was stopped"_s};
}

} // namespace aerolith
