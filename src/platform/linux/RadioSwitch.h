#pragma once

#include <QString>

#include <optional>

namespace aerolith {

/// Whether the kernel lets the interface's radio transmit: false while a switch, key or program blocks it.
/// Absent when the radio has no such switch or the interface is gone. `systemFiles` is where sysfs is
/// mounted.
[[nodiscard]] std::optional<bool> radioSwitchedOn(const QString& systemFiles, const QString& interfaceName);

} // namespace aerolith
