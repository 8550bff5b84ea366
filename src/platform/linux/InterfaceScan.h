#pragma once

#include "platform/CWNetwork.h"
#include "platform/Result.h"
#include "platform/linux/LinuxWireless.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace aerolith {

/// One scan of the interface, as CWInterface::scanForNetworksWithSSID(): asked of NetworkManager where that
/// manages the interface, else of the kernel; what was heard is always read from the kernel.
[[nodiscard]] Result<QList<CWNetwork>> scanInterface(LinuxWireless& wireless, const QString& name,
                                                     const std::optional<QByteArray>& ssid);

} // namespace aerolith
