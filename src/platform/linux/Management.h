#pragma once

#include "platform/Result.h"
#include "platform/linux/networkmanager/NetworkManager.h"

#include <QString>

#include <optional>

namespace aerolith {

/// Whether an interface is in NetworkManager's hands.
struct Management
{
    /// Absent where it is not.
    std::optional<ManagedDevice> device;
    /// Says so, where it is not.
    QString whyNot = {};
};

/// The error is that NetworkManager, which runs, does not say.
[[nodiscard]] Result<Management> managementOf(const NetworkManager& manager, const QString& interfaceName);

} // namespace aerolith
