#include "platform/linux/LinuxWireless.h"

#include "platform/JoinTexts.h"
#include "platform/linux/nl80211/Sightings.h"

#include <utility>

namespace aerolith {

LinuxWireless::LinuxWireless(std::unique_ptr<nl80211::Nl80211> ownedKernel, BusAddress busAddress,
                             QString systemFilesPath, Log& lineLog)
    : kernel(std::move(ownedKernel))
    , bus(std::move(busAddress))
    , systemFiles(std::move(systemFilesPath))
    , log(lineLog)
{
}

Result<nl80211::InterfaceInfo> LinuxWireless::interface(const QString& name)
{
    const auto interfaces = kernel->interfaces();
    if (!interfaces.ok()) {
        return interfaces.error();
    }
    for (const auto& info : interfaces.value()) {
        if (info.name == name) {
            return info;
        }
    }
    return Error{JoinTexts::interfaceGone(name)};
}

QList<nl80211::BssEntry> LinuxWireless::entries(const QString& interfaceName)
{
    const auto info = interface(interfaceName);
    if (!info.ok()) {
        return {};
    }
    const auto entries = kernel->bssEntries(info.value().index);
    return entries.ok() ? entries.value() : QList<nl80211::BssEntry>();
}

bool LinuxWireless::isHeard(const QString& interfaceName, const std::optional<QByteArray>& ssid,
                            nl80211::BootTime since)
{
    const auto dumped = nl80211::bootTimeNow();
    return !nl80211::sightings(entries(interfaceName), since, dumped, ssid).isEmpty();
}

} // namespace aerolith
