#include "platform/linux/StoppableScanEvents.h"

#include "platform/linux/networkmanager/MainThread.h"

#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;
using nl80211::ScanEvent;

namespace {

constexpr auto interval = std::chrono::milliseconds(100);
constexpr int handled = 1;

/// On the main thread, handles the events that are waiting, all but the user's input; false once the
/// application quits.
bool keepWindowsAlive()
{
    if (!isMainThread()) {
        return true;
    }
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&loop] { loop.exit(handled); });
    return loop.exec(QEventLoop::ExcludeUserInputEvents) == handled;
}

} // namespace

StoppableScanEvents::StoppableScanEvents(std::shared_ptr<nl80211::ScanEvents> events,
                                         const std::atomic<bool>& stopped, nl80211::BootTime longestStall)
    : m_events(std::move(events)), m_stopped(stopped), m_longestStall(longestStall)
{
}

Result<std::optional<ScanEvent>> StoppableScanEvents::wait(Deadline deadline)
{
    auto lastTurn = nl80211::bootTimeNow();
    while (!m_stopped && keepWindowsAlive()) {
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
