#pragma once

class QDBusPendingCall;

namespace aerolith {

/// Waits for the answer to a call and handles the thread's events meanwhile, all but the user's input.
/// Returns without it where the application quits.
void awaitCall(const QDBusPendingCall& call);

} // namespace aerolith
