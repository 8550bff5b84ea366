#pragma once

#include "platform/Log.h"
#include "platform/Result.h"
#include "platform/linux/AskedNames.h"
#include "platform/linux/networkmanager/BusConnection.h"
#include "platform/linux/nl80211/BootTime.h"
#include "platform/linux/nl80211/Nl80211.h"
#include "platform/linux/nl80211/ScansUnderWay.h"

#include <QString>

#include <atomic>
#include <memory>

namespace aerolith {

/// What the interfaces of one machine work with. Any thread.
struct LinuxWireless
{
    LinuxWireless(std::unique_ptr<nl80211::Nl80211> ownedKernel, BusAddress busAddress,
                  QString systemFilesPath, Log& lineLog);

    std::unique_ptr<nl80211::Nl80211> kernel;
    /// Where NetworkManager is.
    BusAddress bus;
    /// Where sysfs is mounted.
    QString systemFiles;
    Log& log;
    AskedNames askedNames;
    nl80211::ScansUnderWay scansUnderWay;
    /// Whether it has been logged that NetworkManager's addresses are made up.
    std::atomic<bool> madeUpAddressLogged = false;
    /// Whether every scan and join is to end at once.
    std::atomic<bool> stopped = false;

    /// The interface of that name as it is now; an error when it is gone or the kernel cannot be asked.
    [[nodiscard]] Result<nl80211::InterfaceInfo> interface(const QString& name);

    /// What the kernel has in its list of access points heard lately; empty when it cannot be asked.
    [[nodiscard]] QList<nl80211::BssEntry> entries(const QString& interfaceName);

    /// Whether the interface has heard an access point of that network since then.
    [[nodiscard]] bool isHeard(const QString& interfaceName, const std::optional<QByteArray>& ssid,
                               nl80211::BootTime since);
};

} // namespace aerolith
