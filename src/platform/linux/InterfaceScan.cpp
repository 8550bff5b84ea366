#include "platform/linux/InterfaceScan.h"

#include "platform/linux/AwaitScan.h"
#include "platform/linux/KernelScan.h"
#include "platform/linux/LastScanEvents.h"
#include "platform/linux/Management.h"
#include "platform/linux/NetworkManagerScan.h"
#include "platform/linux/RadioSwitch.h"
#include "platform/linux/StoppableScanEvents.h"
#include "platform/linux/networkmanager/NetworkManager.h"
#include "platform/linux/nl80211/Sightings.h"

#include <algorithm>
#include <chrono>

namespace aerolith {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nl80211::BssEntry;
using nl80211::InterfaceInfo;

namespace {

constexpr auto lastScanInterval = 250ms;

struct ChosenService
{
    std::shared_ptr<ScanService> service;
    bool isNetworkManager = false;
};

ChosenService kernelService(LinuxWireless& wireless, const InterfaceInfo& info,
                            const QString& whyNotNetworkManager)
{
    const auto radioOn = [&wireless, name = info.name] {
        return radioSwitchedOn(wireless.systemFiles, name);
    };
    return {std::make_shared<KernelScan>(*wireless.kernel, info.index, radioOn, whyNotNetworkManager), false};
}

Result<ChosenService> chooseService(LinuxWireless& wireless, const InterfaceInfo& info,
                                    const NetworkManager& manager)
{
    const auto management = managementOf(manager, info.name);
    if (!management.ok()) {
        return management.error();
    }
    const auto& device = management.value().device;
    if (!device) {
        return kernelService(wireless, info, management.value().whyNot);
    }
    return ChosenService{
        std::make_shared<NetworkManagerScan>(manager, wireless.askedNames, info.name, device->path), true};
}

Result<std::shared_ptr<nl80211::ScanEvents>> eventsFor(const ChosenService& chosen, LinuxWireless& wireless,
                                                       const InterfaceInfo& info)
{
    auto events = wireless.kernel->scanEvents(info.index);
    if (events.ok() || !chosen.isNetworkManager) {
        return events;
    }
    return std::shared_ptr<nl80211::ScanEvents>(
        std::make_shared<LastScanEvents>(*chosen.service, lastScanInterval));
}

// Some of NetworkManager's back ends have no access point's address and invent one. The kernel's address is
// what scan results go by; an address that the kernel has never heard is worth a line, once.
void compareAddresses(LinuxWireless& wireless, const QString& name, const NetworkManager& manager,
                      const QList<BssEntry>& entries)
{
    const auto* joined = nl80211::joinedEntry(entries);
    if (joined == nullptr || !joined->address || wireless.madeUpAddressLogged || !manager.isRunning()) {
        return;
    }
    const auto device = manager.device(name);
    if (!device.ok() || !device.value()) {
        return;
    }
    const auto told = manager.activeAccessPointAddress(device.value()->path);
    if (!told.ok() || !told.value()) {
        return;
    }
    const auto isHeard = std::ranges::any_of(entries, [&](const BssEntry& entry) {
        return entry.address && ieee80211::addressText(*entry.address) == *told.value();
    });
    if (!isHeard && !wireless.madeUpAddressLogged.exchange(true)) {
        wireless.log.line(u"NetworkManager's back end makes up access point addresses: it says %1 for %2. "
                          "The kernel's addresses are used."_s.arg(*told.value(),
                                                                   ieee80211::addressText(*joined->address)));
    }
}

} // namespace

Result<QList<CWNetwork>> scanInterface(LinuxWireless& wireless, const QString& name,
                                       const std::optional<QByteArray>& ssid)
{
    const auto info = wireless.interface(name);
    if (!info.ok()) {
        return info.error();
    }
    const NetworkManager manager(wireless.bus, wireless.stopped);
    const auto chosen = chooseService(wireless, info.value(), manager);
    if (!chosen.ok()) {
        return chosen.error();
    }
    if (auto obstacle = chosen.value().service->obstacle()) {
        return *obstacle;
    }
    const auto lastScan = chosen.value().service->lastScan();
    const WaitStart start{.begun = nl80211::bootTimeNow(),
                          .underWaySince = wireless.scansUnderWay.since(info.value().index),
                          .lastScan = lastScan};
    const auto events = eventsFor(chosen.value(), wireless, info.value());
    if (!events.ok()) {
        return events.error();
    }
    StoppableScanEvents stoppable(events.value(), wireless.stopped);
    const auto heard = [&](nl80211::BootTime since) { return wireless.isHeard(name, ssid, since); };
    const auto heardSince = awaitScan(*chosen.value().service, stoppable, start, ssid, heard);
    if (!heardSince.ok()) {
        return heardSince.error();
    }
    const auto dumped = nl80211::bootTimeNow();
    const auto entries = wireless.kernel->bssEntries(info.value().index);
    if (!entries.ok()) {
        return entries.error();
    }
    compareAddresses(wireless, name, manager, entries.value());
    return nl80211::sightings(entries.value(), heardSince.value(), dumped, ssid);
}

} // namespace aerolith
