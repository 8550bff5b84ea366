#pragma once

#include "platform/Workspace.h"

#include <QList>
#include <QStringList>

namespace aerolith {

/// The commands that show a settings page, program first, the best first: those of the running desktop, then
/// what shows network connections on any. `currentDesktop` is the value of XDG_CURRENT_DESKTOP: names in
/// order of preference, with colons between them.
[[nodiscard]] QList<QStringList> settingsCommands(SettingsPage page, const QString& currentDesktop);

} // namespace aerolith
