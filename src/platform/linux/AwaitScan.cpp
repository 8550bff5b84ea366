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

/// One wait: takes in the events, and the silences between them, until one decides it.
class ScanWait
{
public:
    ScanWait(ScanService& service, nl80211::ScanEvents& events, const WaitStart& start,
             const std::optional<QByteArray>& ssid, const Heard& heard)
        : m_service(service), m_events(events), m_start(start), m_ssid(ssid), m_heard(heard)
    {
    }

    [[nodiscard]] Result<BootTime> run()
    {
        const bool isListed = m_ssid && m_heard(BootTime::min());
        auto decision = failed(m_service.request(isListed ? std::nullopt : m_ssid));
        const auto requested = Deadline::clock::now();
        m_lastDeadline = requested + endLimit;
        m_deadline = requested + startLimit;
        while (!decision) {
            const auto event = m_events.wait(m_deadline);
            if (!event.ok()) {
                return event.error();
            }
            decision = event.value() ? take(*event.value()) : takeSilence();
        }
        return *decision;
    }

private:
    /// Absent while the wait goes on.
    using Decision = std::optional<Result<BootTime>>;

    [[nodiscard]] static Decision failed(const Failure& failure)
    {
        return failure ? Decision(*failure) : Decision();
    }

    [[nodiscard]] Decision take(const ScanEvent& event)
    {
        if (event.stage == ScanStage::started) {
            m_startSeen = true;
            m_deadline = m_lastDeadline;
            return {};
        }
        if (auto decision =
                event.stage == ScanStage::finished ? takeEnd(event) : failed(m_service.obstacle())) {
            return decision;
        }
        m_startSeen = false;
        // A name is asked for by one scan alone, and forgotten where that one could not begin.
        return m_ssid ? failed(m_service.request(m_ssid)) : Decision();
    }

    [[nodiscard]] Decision takeEnd(const ScanEvent& event)
    {
        const auto since = m_startSeen ? m_start.begun : runningSince(m_start);
        if (!m_ssid || m_heard(since)) {
            return since;
        }
        if (m_startSeen && asksFor(event, *m_ssid) && ++m_asked == questions) {
            return m_start.begun;
        }
        return {};
    }

    [[nodiscard]] Decision takeSilence()
    {
        if (auto obstacle = m_service.obstacle()) {
            return *obstacle;
        }
        if (const auto newest = newestScan(m_service, m_start.begun, m_start.lastScan, m_heard)) {
            return *newest;
        }
        if (m_deadline == m_lastDeadline) {
            return Error{u"The Wi-Fi scan did not end in time"_s};
        }
        m_deadline = m_lastDeadline; // a long one may be under way, whose start was not seen
        return {};
    }

    ScanService& m_service;
    nl80211::ScanEvents& m_events;
    const WaitStart& m_start;
    const std::optional<QByteArray>& m_ssid;
    const Heard& m_heard;
    Deadline m_deadline;
    Deadline m_lastDeadline;
    /// Of the scan that is under way.
    bool m_startSeen = false;
    /// How many scans have asked for the name in vain.
    int m_asked = 0;
};

} // namespace

Result<BootTime> awaitScan(ScanService& service, nl80211::ScanEvents& events, const WaitStart& start,
                           const std::optional<QByteArray>& ssid, const Heard& heard)
{
    return ScanWait(service, events, start, ssid, heard).run();
}

} // namespace aerolith
