#include "platform/linux/LinuxWireless.h"

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

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
    return Error{u"The Wi-Fi interface %1 is gone"_s.arg(name)};
}

} // namespace aerolith
