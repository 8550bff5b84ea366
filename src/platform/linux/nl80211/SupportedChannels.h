#pragma once

#include "platform/CWChannel.h"
#include "platform/Result.h"
#include "platform/linux/ieee80211/Bytes.h"

#include <QList>

namespace aerolith::nl80211 {

/// The channels that a radio may use where it is, in a dump of NL80211_CMD_GET_WIPHY for it (split over
/// several messages or not), once for each of the widths 20, 40, 80 and 160 MHz that both the radio and the
/// rules allow there. Errors as decodeBssEntries().
[[nodiscard]] Result<QList<CWChannel>> decodeSupportedChannels(Bytes dump);

} // namespace aerolith::nl80211
