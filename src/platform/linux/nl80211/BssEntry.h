#pragma once

#include "platform/Result.h"
#include "platform/linux/ieee80211/Bytes.h"
#include "platform/linux/ieee80211/HardwareAddress.h"

#include <QByteArray>
#include <QList>

#include <cstdint>
#include <optional>

namespace aerolith::nl80211 {

/// One access point in the kernel's list of those heard lately. A hidden one may stand there twice, with and
/// without its name, and any of them once per channel.
struct BssEntry
{
    /// Absent where the radio does not tell.
    std::optional<ieee80211::HardwareAddress> address;
    /// Centre of the primary channel in MHz; 0 when not delivered.
    std::uint32_t frequency = 0;
    /// Hundredths of a dBm.
    std::optional<std::int32_t> signal;
    /// 0 to 100, from radios that know no better.
    std::optional<std::uint8_t> signalQuality;
    /// In units of 1024 microseconds; 0 when not delivered.
    std::uint16_t beaconInterval = 0;
    /// The capability field as sent (ieee80211/Capability.h).
    std::uint16_t capability = 0;
    /// Elements of the newest probe response, or of the newest beacon where there was none, and the access
    /// point's own clock in that frame, in microseconds.
    QByteArray elements;
    std::uint64_t clock = 0;
    /// The same of the newest beacon. The elements are empty where no beacon was heard.
    QByteArray beaconElements;
    std::optional<std::uint64_t> beaconClock;
    /// When the newest frame came in, in nanoseconds since boot, sleep included. Not every driver tells.
    std::optional<std::uint64_t> lastSeenBootTime;
    /// The same as an age in milliseconds.
    std::optional<std::uint32_t> seenMillisecondsAgo;
    /// An nl80211_bss_status, where the interface is joined to it or about to be.
    std::optional<std::uint32_t> status;
};

/// The entries in a dump of NL80211_CMD_GET_SCAN, messages back to back. An error, which says what is wrong
/// and where, if any of it is cut short or lies about a length.
[[nodiscard]] Result<QList<BssEntry>> decodeBssEntries(Bytes dump);

/// The entry that the interface is joined to (infrastructure or ad-hoc), or null.
[[nodiscard]] const BssEntry* joinedEntry(const QList<BssEntry>& entries);

} // namespace aerolith::nl80211
