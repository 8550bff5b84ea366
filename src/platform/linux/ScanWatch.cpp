#include "platform/linux/ScanWatch.h"

#include "platform/linux/nl80211/BootTime.h"

namespace aerolith {

ScanWatch::ScanWatch(nl80211::Nl80211& kernel, nl80211::ScansUnderWay& scans) : m_scans(scans)
{
    m_scans.allTakenUntil(nl80211::bootTimeNow());
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
        const auto asked = nl80211::bootTimeNow();
        const auto event = m_events->wait({});
        if (!event.ok()) {
            m_scans.forgetAll(); // some may have been missed
            return;
        }
        if (!event.value()) {
            m_scans.allTakenUntil(asked);
            return;
        }
        m_scans.take(*event.value());
    }
}

} // namespace aerolith
