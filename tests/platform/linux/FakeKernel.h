#pragma once

#include "platform/linux/nl80211/Nl80211.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

namespace aerolith {

/// The kernel's Wi-Fi as the test sets it up: one station interface, wlan0, that hears nothing. Scans happen
/// when the test says so, on any thread.
class FakeKernel : public nl80211::Nl80211
{
public:
    FakeKernel();

    /// Adds an access point to the list of those heard, `age` ago.
    nl80211::BssEntry& hear(const QString& address, const QByteArray& ssid,
                            std::chrono::milliseconds age = std::chrono::milliseconds(0));

    void tell(nl80211::ScanStage stage, const QList<QByteArray>& ssids = {});

    [[nodiscard]] Result<QList<nl80211::InterfaceInfo>> interfaces() override;

    [[nodiscard]] Result<QList<CWChannel>> supportedChannels(std::uint32_t) override
    {
        return QList<CWChannel>();
    }

    [[nodiscard]] Result<QList<nl80211::BssEntry>> bssEntries(std::uint32_t) override { return entries; }

    [[nodiscard]] Failure triggerScan(std::uint32_t interfaceIndex,
                                      const std::optional<QByteArray>& ssid) override;
    [[nodiscard]] Result<std::shared_ptr<nl80211::ScanEvents>>
    scanEvents(std::optional<std::uint32_t> interfaceIndex) override;

    /// The next event, or none at the deadline.
    [[nodiscard]] std::optional<nl80211::ScanEvent> next(nl80211::ScanEvents::Deadline deadline);

    QList<nl80211::InterfaceInfo> interfaceList;
    std::optional<Error> failure;
    QList<nl80211::BssEntry> entries;
    /// What a scan without NetworkManager comes to: the error, or events told at once.
    std::optional<Error> triggerRefusal;
    QList<nl80211::ScanStage> triggeredEvents;
    bool tellsEvents = true;
    std::optional<Error> eventsFailure;
    /// As soon as somebody listens to the events of one interface.
    std::function<void()> whenListenedTo;
    /// As soon as somebody waits for an event, once.
    std::function<void()> whenWaitedFor;
    /// Of the events, which come without it.
    std::optional<int> descriptor;

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<nl80211::ScanEvent> m_events;
};

} // namespace aerolith
