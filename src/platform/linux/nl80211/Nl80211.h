#pragma once

#include "platform/CWChannel.h"
#include "platform/Result.h"
#include "platform/linux/nl80211/BssEntry.h"
#include "platform/linux/nl80211/InterfaceInfo.h"
#include "platform/linux/nl80211/ScanEvent.h"

#include <QByteArray>
#include <QList>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

namespace aerolith::nl80211 {

/// Scans of one interface, or of all, as they begin and end, from the moment the object was made: make it
/// before asking for the scan to be waited for. One thread at a time.
class ScanEvents
{
public:
    using Deadline = std::chrono::steady_clock::time_point;

    ScanEvents() = default;
    ScanEvents(const ScanEvents&) = delete;
    ScanEvents& operator=(const ScanEvents&) = delete;
    virtual ~ScanEvents() = default;

    /// Blocks until the next event; absent when there was none before the deadline. After an error, events
    /// may have been missed.
    [[nodiscard]] virtual Result<std::optional<ScanEvent>> wait(Deadline deadline) = 0;

    /// Becomes readable when there may be an event; absent where the source has no such thing.
    [[nodiscard]] virtual std::optional<int> descriptor() const { return {}; }
};

/// The kernel's Wi-Fi configuration interface. Any thread, also several at once. Every operation asks the
/// kernel anew and blocks for the length of a local request, at most a few seconds.
class Nl80211
{
public:
    Nl80211() = default;
    Nl80211(const Nl80211&) = delete;
    Nl80211& operator=(const Nl80211&) = delete;
    virtual ~Nl80211() = default;

    /// All Wi-Fi interfaces, in the kernel's order.
    [[nodiscard]] virtual Result<QList<InterfaceInfo>> interfaces() = 0;

    /// What InterfaceInfo::radio may use, as decodeSupportedChannels() lists it.
    [[nodiscard]] virtual Result<QList<CWChannel>> supportedChannels(std::uint32_t radio) = 0;

    /// Everything in the kernel's list of access points heard lately. Needs no privilege.
    [[nodiscard]] virtual Result<QList<BssEntry>> bssEntries(std::uint32_t interfaceIndex) = 0;

    /// Starts a scan that asks for this name, or for any, unless another is under way; returns without
    /// waiting for its end. Needs a privilege that users do not have: the error then says so.
    [[nodiscard]] virtual Failure triggerScan(std::uint32_t interfaceIndex,
                                              const std::optional<QByteArray>& ssid) = 0;

    /// Of every interface where none is given. Needs no privilege.
    [[nodiscard]] virtual Result<std::shared_ptr<ScanEvents>>
    scanEvents(std::optional<std::uint32_t> interfaceIndex) = 0;
};

/// The running kernel's. Each operation opens a socket of its own.
[[nodiscard]] std::unique_ptr<Nl80211> makeNl80211();

} // namespace aerolith::nl80211
