#pragma once

#include "platform/linux/nl80211/Nl80211.h"
#include "platform/linux/nl80211/ScansUnderWay.h"

#include <QSocketNotifier>

#include <memory>

namespace aerolith {

/// Listens to the scans of all interfaces between ours too, so that a cycle that begins within somebody
/// else's knows since when that one hears access points. Costs a turn of the event loop for each scan's
/// beginning and end, and nothing else. Main thread.
class ScanWatch
{
public:
    /// Tells `scans`, which outlives this object, or nothing where the kernel's events cannot be had.
    ScanWatch(nl80211::Nl80211& kernel, nl80211::ScansUnderWay& scans);

private:
    void read();

    nl80211::ScansUnderWay& m_scans;
    std::shared_ptr<nl80211::ScanEvents> m_events;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace aerolith
