#include "platform/linux/FakeKernel.h"

#include "platform/linux/nl80211/BootTime.h"

#include <linux/nl80211.h>

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;
using nl80211::BssEntry;
using nl80211::InterfaceInfo;
using nl80211::ScanEvent;
using nl80211::ScanStage;

namespace {

ieee80211::HardwareAddress addressOf(const QString& text)
{
    ieee80211::HardwareAddress address{};
    const auto bytes = QByteArray::fromHex(text.toLatin1());
    std::copy_n(bytes.begin(), std::min<qsizetype>(bytes.size(), 6), address.begin());
    return address;
}

class Events : public nl80211::ScanEvents
{
public:
    explicit Events(FakeKernel& kernel) : m_kernel(kernel) {}

    Result<std::optional<ScanEvent>> wait(Deadline deadline) override
    {
        if (m_kernel.eventsFailure) {
            return *m_kernel.eventsFailure;
        }
        return m_kernel.next(deadline);
    }

    std::optional<int> descriptor() const override { return m_kernel.descriptor; }

private:
    FakeKernel& m_kernel;
};

} // namespace

FakeKernel::FakeKernel()
{
    InterfaceInfo& info = interfaceList.emplaceBack();
    info.index = 3;
    info.name = u"wlan0"_s;
    info.type = NL80211_IFTYPE_STATION;
}

BssEntry& FakeKernel::hear(const QString& address, const QByteArray& ssid, std::chrono::milliseconds age)
{
    BssEntry& entry = entries.emplaceBack();
    entry.address = addressOf(address);
    entry.lastSeenBootTime = static_cast<std::uint64_t>((nl80211::bootTimeNow() - age).count());
    entry.elements = QByteArray(1, '\0') + QByteArray(1, static_cast<char>(ssid.size())) + ssid;
    return entry;
}

void FakeKernel::tell(ScanStage stage, const QList<QByteArray>& ssids)
{
    const std::lock_guard lock(m_mutex);
    m_events.push_back({.stage = stage, .ssids = ssids});
    m_changed.notify_all();
}

std::optional<ScanEvent> FakeKernel::next(nl80211::ScanEvents::Deadline deadline)
{
    if (const auto reaction = std::exchange(whenWaitedFor, {})) {
        reaction();
    }
    std::unique_lock lock(m_mutex);
    if (!m_changed.wait_until(lock, deadline, [this] { return !m_events.empty(); })) {
        return {};
    }
    const auto event = m_events.front();
    m_events.pop_front();
    return event;
}

Result<QList<InterfaceInfo>> FakeKernel::interfaces()
{
    return failure ? Result<QList<InterfaceInfo>>(*failure) : interfaceList;
}

Failure FakeKernel::triggerScan(std::uint32_t, const std::optional<QByteArray>&)
{
    if (triggerRefusal) {
        return triggerRefusal;
    }
    for (const auto stage : triggeredEvents) {
        tell(stage);
    }
    return {};
}

Result<std::shared_ptr<nl80211::ScanEvents>>
FakeKernel::scanEvents(std::optional<std::uint32_t> interfaceIndex)
{
    if (!tellsEvents) {
        return Error{u"no events"_s};
    }
    if (interfaceIndex && whenListenedTo) {
        whenListenedTo();
    }
    return std::shared_ptr<nl80211::ScanEvents>(std::make_shared<Events>(*this));
}

} // namespace aerolith
