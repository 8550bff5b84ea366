#pragma once

#include <functional>

namespace aerolith {

/// Makes the test program's event loop, once.
void startMainLoop();

/// Handles the main thread's events until the condition holds. False when it did not within ten seconds.
[[nodiscard]] bool handleEventsUntil(const std::function<bool()>& condition);

/// Handles the events that are waiting now, and those that they lead to.
void handleWaitingEvents();

} // namespace aerolith
