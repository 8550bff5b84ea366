#pragma once

#include "platform/linux/ieee80211/Bytes.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace aerolith::ieee80211 {

/// The network name as sent, 0 to 32 bytes; empty where there is no name or the access point hides it (sends
/// no byte, or a zero for each).
[[nodiscard]] QByteArray ssidBytes(Bytes elements);

/// A network name for display: UTF-8, each byte that is not as U+FFFD; absent when the name is hidden.
[[nodiscard]] std::optional<QString> ssidText(const QByteArray& ssid);

} // namespace aerolith::ieee80211
