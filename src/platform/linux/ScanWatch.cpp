#include "platform/linux/ScanWatch.h"

#include "platform/linux/nl80211/BootTime.h"

namespace aerolith {

using namespace std::chrono_literals;

namespace {

// An event has no time of its own, and a busy main thread reads it late.
constexpr auto lateness = 500ms;

} // namespace

ScanWatch::ScanWatch(nl80211::Nl80211& kernel, nl80211::ScansUnderWay& scans) : m_scans(scans)
{
    const auto events = kernel.scanEvents({});
    if (!events.ok() || !events.value()->descriptor()) {
        return;
    }
    m_events = events.value();
    m_notifier = std::make_unique<QSocketNotifier>(*m_events->descriptor(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { read(); });
}

void ScanWatch::read()
{
    for (;;) {
        const auto event = m_events->wait({});
        if (!event.ok()) {
            m_scans.forgetAll(); // some may have been missed
            return;
        }
        if (!event.value()) {
            return;
        }
        m_scans.take(*event.value(), nl80211::bootTimeNow() - lateness);
    }
}

} // namespace aerolith
