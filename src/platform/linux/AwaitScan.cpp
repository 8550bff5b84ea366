#include "platform/linux/AwaitScan.h"

#include <algorithm>
#include <chrono>

namespace aerolith {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nl80211::BootTime;
using nl80211::ScanEvent;
using nl80211::ScanStage;
using Deadline = nl80211::ScanEvents::Deadline;

namespace {

constexpr auto startLimit = 15s;
constexpr auto endLimit = 30s;
// A scan of every channel, with those where it may only listen; and one of three bands while joined, when the
// radio goes back to its own channel in between.
constexpr auto usualScan = 10s;
constexpr auto longestScan = 20s;

// What the service, itself told of the end of a scan, may be behind by on a busy machine.
constexpr auto lateness = 1s;

// The question for a name, or its answer, is easily lost on the air.
constexpr int questions = 2;

bool asksFor(const ScanEvent& event, const QByteArray& ssid)
{
    return event.ssids.isEmpty() || event.ssids.contains(ssid);
}

/// A bound for the beginning of a scan that ended, or was under way, at `end`; the one before it ended at
/// `before`, says the service.
BootTime earliestStart(BootTime end, std::optional<BootTime> before)
{
    return before ? std::max(end - longestScan, *before - lateness) : end - longestScan;
}

/// The same for the one that is under way when the wait begins.
BootTime runningSince(const WaitStart& start)
{
    return start.underWaySince ? std::max(start.begun - longestScan, *start.underWaySince)
                               : earliestStart(start.begun, start.lastScan);
}

/// The same for the newest scan that the service knows of, unless that is too long ago or has heard nothing:
/// NetworkManager also counts what was none, as where the supplicant below it hangs. `before` is what it knew
/// when the wait began.
std::optional<BootTime> newestScan(ScanService& service, BootTime begun, std::optional<BootTime> before,
                                   const Heard& heard)
{
    const auto lastScan = service.lastScan();
    if (!lastScan || *lastScan <= begun - startLimit) {
        return {};
    }
    const auto since = lastScan == before ? *lastScan - usualScan : earliestStart(*lastScan, before);
    return heard(since) ? std::optional(since) : std::nullopt;
}

} // namespace

Result<BootTime> awaitScan(ScanService& service, nl80211::ScanEvents& events, const WaitStart& start,
                           const std::optional<QByteArray>& ssid, const Heard& heard)
{
    const BootTime begun = start.begun;
    const auto before = start.lastScan;
    const bool isListed = ssid && heard(BootTime::min());
    auto refusal = service.request(isListed ? std::nullopt : ssid);
    const auto requested = Deadline::clock::now();
    const auto lastDeadline = requested + endLimit;
    auto deadline = requested + startLimit;
    bool startSeen = false;
    int asked = 0;
    while (!refusal) {
        const auto event = events.wait(deadline);
        if (!event.ok()) {
            return event.error();
        }
        if (!event.value()) {
            if (auto obstacle = service.obstacle()) {
                return *obstacle;
            }
            if (const auto newest = newestScan(service, begun, before, heard)) {
                return *newest;
            }
            if (deadline == lastDeadline) {
                return Error{u"The Wi-Fi scan did not end in time"_s};
            }
            deadline = lastDeadline; // a long one may be under way, whose start was not seen
            continue;
        }
        switch (event.value()->stage) {
        case ScanStage::started:
            startSeen = true;
            deadline = lastDeadline;
            break;
        case ScanStage::finished: {
            const auto since = startSeen ? begun : runningSince(start);
            if (!ssid || heard(since)) {
                return since;
            }
            if (startSeen && asksFor(*event.value(), *ssid) && ++asked == questions) {
                return begun;
            }
            break;
        }
        case ScanStage::aborted:
            if (auto obstacle = service.obstacle()) {
                return *obstacle;
            }
            break;
        }
        if (event.value()->stage != ScanStage::started) {
            startSeen = false;
            // A name is asked for by one scan alone, and forgotten where that one could not begin.
            if (ssid) {
                refusal = service.request(ssid);
            }
        }
    }
    return *refusal;
}

} // namespace aerolith
