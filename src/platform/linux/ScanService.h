#pragma once

#include "platform/Result.h"
#include "platform/linux/nl80211/BootTime.h"
#include "platform/linux/nl80211/Nl80211.h"

#include <QByteArray>

#include <optional>

namespace aerolith {

/// Whoever may be asked to have one interface scan. One thread at a time; every operation blocks for one
/// local request.
class ScanService
{
public:
    ScanService() = default;
    ScanService(const ScanService&) = delete;
    ScanService& operator=(const ScanService&) = delete;
    virtual ~ScanService() = default;

    /// What stands in the way of a scan as things are now; nothing where a scan can be asked for.
    [[nodiscard]] virtual Failure obstacle() = 0;

    /// Asks for a scan, of this name too where one is given, and returns before it has begun. Where somebody
    /// else's scan is under way the request may be forgotten. The error says why there will be no scan.
    [[nodiscard]] virtual Failure request(const std::optional<QByteArray>& ssid) = 0;

    /// When the newest scan ended; absent when there was none or the service does not know.
    [[nodiscard]] virtual std::optional<nl80211::BootTime> lastScan() = 0;
};

} // namespace aerolith
