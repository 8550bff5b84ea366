#pragma once

#include "platform/CWNetwork.h"
#include "platform/linux/nl80211/BootTime.h"
#include "platform/linux/nl80211/BssEntry.h"

#include <QByteArray>
#include <QList>

#include <optional>

namespace aerolith::nl80211 {

/// What a scan found: one network per address, in the order of the addresses. The kernel keeps an entry for
/// 30 s after it was last heard, so only entries heard since `scanStarted` count; `dumped` is when the dump
/// was asked for. With an SSID, only entries of that name. Of the entries of one address one that knows the
/// name wins over one that does not, then the newest. Entries without an address are left out.
[[nodiscard]] QList<CWNetwork> sightings(const QList<BssEntry>& entries, BootTime scanStarted,
                                         BootTime dumped, const std::optional<QByteArray>& ssid);

/// Whether the access point of that address, in the form of CWNetwork::bssid, keeps its name out of its
/// beacons.
[[nodiscard]] bool hidesName(const QList<BssEntry>& entries, const QString& address);

} // namespace aerolith::nl80211
