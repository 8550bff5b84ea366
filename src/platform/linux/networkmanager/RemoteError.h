#pragma once

#include "platform/Result.h"

#include <QString>

class QDBusError;

namespace aerolith {

/// Why a request to NetworkManager failed, as far as the program acts on it.
enum class RemoteFailure
{
    /// There is no NetworkManager on the bus, or no bus.
    notRunning,
    /// NetworkManager went away in mid-call, or took too long.
    noAnswer,
    permissionDenied,
    /// The device cannot do this in the state that it is in.
    notAllowed,
    /// The device or access point does not exist, or no longer.
    unknownObject,
    /// The answer is not of the type that the interface promises.
    wrongAnswer,
    other,
};

struct RemoteError
{
    RemoteFailure failure = RemoteFailure::other;
    /// A sentence without a full stop that a person can read.
    QString description;

    [[nodiscard]] Error error() const { return {description}; }
};

/// Where it is plain before any call.
[[nodiscard]] RemoteError notRunning();

/// The one place that knows the names of D-Bus and NetworkManager errors.
[[nodiscard]] RemoteError remoteError(const QDBusError& error);

} // namespace aerolith
