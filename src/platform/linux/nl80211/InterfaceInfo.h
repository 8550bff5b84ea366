#pragma once

#include "platform/Result.h"
#include "platform/linux/ieee80211/Bytes.h"
#include "platform/linux/ieee80211/HardwareAddress.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstdint>
#include <optional>

namespace aerolith::nl80211 {

/// One Wi-Fi interface of the machine.
struct InterfaceInfo
{
    /// 0 for one without a network device.
    std::uint32_t index = 0;
    QString name;
    std::optional<ieee80211::HardwareAddress> address;
    /// Number of the radio that it belongs to.
    std::uint32_t radio = 0;
    /// An nl80211_iftype.
    std::uint32_t type = 0;
    /// Name, as sent, of the network that it is joined to or offers; absent where there is none or the kernel
    /// does not say.
    std::optional<QByteArray> ssid;
    /// Hundredths of a dBm.
    std::optional<std::int32_t> transmitPower;
};

/// The interfaces in replies to NL80211_CMD_GET_INTERFACE, messages back to back; errors as
/// decodeBssEntries().
[[nodiscard]] Result<QList<InterfaceInfo>> decodeInterfaces(Bytes dump);

/// Milliwatts, rounded to the nearest, for hundredths of a dBm.
[[nodiscard]] qint64 milliwatts(std::int32_t hundredthsOfDbm);

} // namespace aerolith::nl80211
