#pragma once

#include "platform/Result.h"
#include "platform/linux/ScanService.h"
#include "platform/linux/nl80211/BootTime.h"
#include "platform/linux/nl80211/Nl80211.h"

#include <QByteArray>

#include <functional>
#include <optional>

namespace aerolith {

/// Whether an access point has been heard since, of the name that is scanned for if it is for one, as far as
/// is remembered.
using Heard = std::function<bool(nl80211::BootTime since)>;

struct WaitStart
{
    /// Before the events were made, and that before the wait.
    nl80211::BootTime begun;
    /// The earliest that a scan can have begun which was under way then; absent where that is not known.
    std::optional<nl80211::BootTime> underWaySince = {};
    /// The newest scan that the service knew of, read before the events were made: of a scan whose end they
    /// tell, it must not know yet.
    std::optional<nl80211::BootTime> lastScan = {};
};

/// Asks for a scan and waits for its end: 15 seconds for its start, as the service may put it off, and 30 in
/// all. Returns since when an access point must have been heard to be a find of the scan that answers.
///
/// Somebody else's scan that is under way answers a full scan too; a scan for a name only if it has found
/// the name. A name that has been heard lately is looked for by a full scan first; then it is asked for until
/// it has been heard or two scans have asked in vain. A scan that was broken off answers nothing. Where no
/// scan begins in time, the newest one that the service knows of has to do, unless it is older than those 15
/// seconds or has heard nothing: then one may be under way, which has until the end of the 30. None by then,
/// like an obstacle that turns up meanwhile, is an error.
[[nodiscard]] Result<nl80211::BootTime> awaitScan(ScanService& service, nl80211::ScanEvents& events,
                                                  const WaitStart& start,
                                                  const std::optional<QByteArray>& ssid, const Heard& heard);

} // namespace aerolith
