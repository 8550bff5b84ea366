#pragma once

#include "platform/CWNetwork.h"
#include "platform/Result.h"
#include "platform/linux/networkmanager/DBusTypes.h"

#include <QString>

namespace aerolith {

/// The connection profile with which NetworkManager joins the network; what it leaves out, NetworkManager
/// completes. `hidden` is whether the access point keeps its name to itself. `password` may be empty, and is
/// shared by the settings, not copied. The error says what is wrong with the password, or what else the
/// network needs.
///
/// A network that takes several kinds of password is joined with the personal one. Where it offers both WPA2
/// and WPA3, NetworkManager picks the better one that the machine can do.
[[nodiscard]] Result<ConnectionSettings> joinSettings(const CWNetwork& network, bool hidden,
                                                      const QString& password);

/// Whether a profile's settings are for the kind of security that the network has: an open one's for an open
/// network, another's for one that offers its key management. NetworkManager refuses all others.
[[nodiscard]] bool fitsSecurity(const ConnectionSettings& profile, const CWNetwork& network);

/// The names of the sections, and of the one setting that holds the password.
extern const QString wirelessSection;
extern const QString securitySection;
[[nodiscard]] QString passwordSetting(const ConnectionSettings& settings);

} // namespace aerolith
