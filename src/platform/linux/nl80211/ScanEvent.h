#pragma once

#include "platform/Result.h"
#include "platform/linux/ieee80211/Bytes.h"

#include <QByteArray>
#include <QList>

#include <cstdint>
#include <optional>

namespace aerolith::nl80211 {

enum class ScanStage
{
    started,
    finished,
    aborted
};

/// News of a scan, whoever asked for it.
struct ScanEvent
{
    std::uint32_t interfaceIndex = 0;
    ScanStage stage = ScanStage::started;
    /// The names that the scan asks for, an empty one for any name. None where it only listens or the source
    /// of the event does not say.
    QList<QByteArray> ssids = {};

    friend bool operator==(const ScanEvent&, const ScanEvent&) = default;
};

/// The event in one message from the multicast group "scan"; absent when the message tells of something else.
/// Errors as decodeBssEntries().
[[nodiscard]] Result<std::optional<ScanEvent>> decodeScanEvent(Bytes message);

} // namespace aerolith::nl80211
