#pragma once

#include "app/instance/StartupToken.h"

class QWidget;

namespace aerolith {

/// Shows a window in front of others, hidden or minimised before or not, on behalf of what the user has just
/// done in another window of the program.
void showInFront(QWidget& window);

/// The same on behalf of a start of the program, which ends with it.
void showInFront(QWidget& window, const StartupToken& token);

} // namespace aerolith
