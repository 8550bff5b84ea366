#pragma once

#include "platform/CWNetwork.h"
#include "platform/Result.h"
#include "platform/linux/networkmanager/BusConnection.h"
#include "platform/linux/networkmanager/DBusTypes.h"

#include <QList>
#include <QString>

#include <optional>

namespace aerolith {

/// A connection profile that the system keeps, without its secrets.
struct StoredProfile
{
    QString path;
    ConnectionSettings settings;
};

/// The profile for the network that was used last, of those that NetworkManager could activate on the device
/// now and that this user may see; absent where there is none. The error is that NetworkManager does not say
/// which it could activate.
[[nodiscard]] Result<std::optional<StoredProfile>>
storedProfile(const BusConnection& bus, const QString& devicePath, const CWNetwork& network);

/// Of these the profile for the network, by its name and security, that was used last, the first of several;
/// absent where none is for it. Settings of a wrong type count as not set.
[[nodiscard]] std::optional<StoredProfile> newestProfile(const QList<StoredProfile>& profiles,
                                                         const CWNetwork& network);

/// Whether `settings` hold no password but the one that the profile has; false where this user may not know
/// that one, or NetworkManager does not tell in time: it may have to ask the desktop. The error is that the
/// wait was ended.
[[nodiscard]] Result<bool> hasPassword(const BusConnection& bus, const StoredProfile& profile,
                                       const ConnectionSettings& settings);

/// The profile's settings with the password of `settings`, which have one, and with all else as it is.
[[nodiscard]] ConnectionSettings withPassword(const StoredProfile& profile,
                                              const ConnectionSettings& settings);

/// Stores the password of `settings` in the profile, and leaves all else in it as it is.
[[nodiscard]] Failure storePassword(const BusConnection& bus, const StoredProfile& profile,
                                    const ConnectionSettings& settings);

/// Keeps a new profile, by its object, that would vanish with its connection.
[[nodiscard]] Failure keepProfile(const BusConnection& bus, const QString& path);

} // namespace aerolith
