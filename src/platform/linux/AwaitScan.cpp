#include "platform/linux/AwaitScan.h"

#include <algorithm>
#include <chrono>

namespace aerolith {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nl80211::BootTime;
using nl80211::ScanEvent;
using nl80211::ScanStage;
using nl80211::ScanTrigger;
using Deadline = nl80211::ScanEvents::Deadline;

namespace {

constexpr auto startLimit = 15s;
constexpr auto endLimit = 30s;
// A scan of every channel, with those where it may only listen.
constexpr auto longestScan = 10s;

// A scan that was on its way when the request came in may begin after it, without the name.
bool asksFor(const ScanEvent& event, const std::optional<QByteArray>& ssid)
{
    return !ssid || event.ssids.isEmpty() || event.ssids.contains(*ssid);
}

Result<BootTime> newestScan(ScanService& service, BootTime begun)
{
    if (auto obstacle = service.obstacle()) {
        return *obstacle;
    }
    const auto lastScan = service.lastScan();
    if (lastScan && *lastScan > begun - startLimit) {
        return *lastScan - longestScan;
    }
    return Error{u"The Wi-Fi scan did not end in time"_s};
}

} // namespace

Result<BootTime> awaitScan(ScanService& service, nl80211::ScanEvents& events, BootTime begun,
                           const std::optional<QByteArray>& ssid)
{
    // A scan that is under way began after the one before it had ended.
    const auto runningSince = std::max(begun - longestScan, service.lastScan().value_or(BootTime::min()));
    auto trigger = service.request(ssid);
    const auto requested = Deadline::clock::now();
    auto deadline = requested + startLimit;
    bool startSeen = false;
    while (trigger.ok()) {
        const auto event = events.wait(deadline);
        if (!event.ok()) {
            return event.error();
        }
        if (!event.value()) {
            return newestScan(service, begun);
        }
        switch (event.value()->stage) {
        case ScanStage::started:
            startSeen = true;
            deadline = requested + endLimit;
            break;
        case ScanStage::finished:
            if (startSeen && asksFor(*event.value(), ssid)) {
                return begun;
            }
            if (!ssid) {
                return runningSince;
            }
            startSeen = false;
            if (trigger.value() == ScanTrigger::alreadyRunning) {
                trigger = service.request(ssid);
            }
            break;
        case ScanStage::aborted:
            startSeen = false;
            if (auto obstacle = service.obstacle()) {
                return *obstacle;
            }
            break;
        }
    }
    return trigger.error();
}

} // namespace aerolith
