#pragma once

#include "platform/CWNetwork.h"
#include "platform/Result.h"
#include "platform/linux/LinuxWireless.h"

#include <QString>

#include <optional>

namespace aerolith {

/// One join by the interface, as CWInterface::associateToNetwork(), at NetworkManager's hands.
///
/// Without a password the profile that NetworkManager has stored for a network of that name and kind of
/// security is activated. A password is
/// tried with a new profile that vanishes if it fails. Once it has succeeded, that profile is kept; where
/// there is a stored one, that is given the password and takes over, so that a network has one profile. The
/// password stays in it where that second step fails: it has proved right.
[[nodiscard]] Failure joinNetwork(LinuxWireless& wireless, const QString& name, const CWNetwork& network,
                                  const std::optional<QString>& password);

} // namespace aerolith
