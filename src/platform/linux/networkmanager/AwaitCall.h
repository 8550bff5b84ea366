#pragma once

#include <atomic>
#include <chrono>
#include <functional>

class QDBusPendingCall;

namespace aerolith {

// Waits during which the thread handles its events, all but the user's input. They need an application, but
// may be on any thread.

/// Waits for the answer to a call. Returns without it where the application quits, which only its own thread
/// notices, and within a tenth of a second after `stopped` has been set.
void awaitCall(const QDBusPendingCall& call, const std::atomic<bool>& stopped);

/// Waits until `isOver`, also while the application quits, but no longer than that. Asks after every event
/// and ten times a second.
void awaitAtEnd(const std::function<bool()>& isOver, std::chrono::milliseconds limit);

/// Waits for that long, with 0 for the events that are there now. False where awaitCall() would have
/// returned.
[[nodiscard]] bool pause(std::chrono::milliseconds duration, const std::atomic<bool>& stopped);

} // namespace aerolith
