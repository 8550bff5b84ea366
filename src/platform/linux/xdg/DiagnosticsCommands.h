#pragma once

#include <QList>
#include <QStringList>

namespace aerolith {

/// The commands that open a tool to find out with what is wrong with a network, program first, the best
/// first. All of them have a window of their own: none needs a terminal. `currentDesktop` is the value of
/// XDG_CURRENT_DESKTOP: names with colons between them.
[[nodiscard]] QList<QStringList> diagnosticsCommands(const QString& currentDesktop);

} // namespace aerolith
