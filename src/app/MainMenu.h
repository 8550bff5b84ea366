#pragma once

#include "platform/Log.h"
#include "platform/Workspace.h"

class QWidget;

namespace aerolith {

class MainWindow;
class Updater;

/// What the commands of the menu bar work on. All of it outlives the window.
struct MenuTargets
{
    Updater& updater;
    Workspace& workspace;
    Log& log;
};

/// Gives the window its menu bar. Nothing in it opens a further main window. Main thread.
void addMainMenu(MainWindow& window, const MenuTargets& targets);

/// What the program is, which version and under which licence, over its window. Main thread.
void showAbout(QWidget& window);

/// Composes a message to the maker's mailbox in the user's mail program; what keeps it from that is logged.
void contactSupport(Workspace& workspace, Log& log);

} // namespace aerolith
