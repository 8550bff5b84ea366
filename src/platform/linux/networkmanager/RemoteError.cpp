#include "platform/linux/networkmanager/RemoteError.h"

#include "platform/JoinTexts.h"

#include <QDBusError>

#include <algorithm>
#include <array>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

struct NamedFailure
{
    QLatin1StringView name;
    RemoteFailure failure;
};

constexpr std::array namedFailures = {
    NamedFailure{"org.freedesktop.DBus.Error.ServiceUnknown"_L1, RemoteFailure::notRunning},
    NamedFailure{"org.freedesktop.DBus.Error.NameHasNoOwner"_L1, RemoteFailure::notRunning},
    NamedFailure{"org.freedesktop.DBus.Error.Disconnected"_L1, RemoteFailure::notRunning},
    NamedFailure{"org.freedesktop.DBus.Error.NoServer"_L1, RemoteFailure::notRunning},
    NamedFailure{"org.freedesktop.DBus.Error.NoReply"_L1, RemoteFailure::noAnswer},
    NamedFailure{"org.freedesktop.DBus.Error.Timeout"_L1, RemoteFailure::noAnswer},
    NamedFailure{"org.freedesktop.DBus.Error.TimedOut"_L1, RemoteFailure::noAnswer},
    NamedFailure{"org.freedesktop.DBus.Error.AccessDenied"_L1, RemoteFailure::permissionDenied},
    NamedFailure{"org.freedesktop.NetworkManager.PermissionDenied"_L1, RemoteFailure::permissionDenied},
    // The permission to change profiles, where joining needs a new one.
    NamedFailure{"org.freedesktop.NetworkManager.Settings.PermissionDenied"_L1,
                 RemoteFailure::permissionDenied},
    NamedFailure{"org.freedesktop.NetworkManager.Device.NotAllowed"_L1, RemoteFailure::notAllowed},
    NamedFailure{"org.freedesktop.NetworkManager.UnknownDevice"_L1, RemoteFailure::unknownObject},
    NamedFailure{"org.freedesktop.DBus.Error.UnknownObject"_L1, RemoteFailure::unknownObject},
    NamedFailure{"org.freedesktop.DBus.Error.UnknownInterface"_L1, RemoteFailure::unknownObject},
    NamedFailure{"org.freedesktop.DBus.Error.UnknownMethod"_L1, RemoteFailure::unknownObject},
    NamedFailure{"org.freedesktop.DBus.Error.InvalidSignature"_L1, RemoteFailure::wrongAnswer},
};

RemoteFailure failureNamed(const QString& name)
{
    const auto* found =
        std::ranges::find_if(namedFailures, [&](const auto& row) { return row.name == name; });
    return found == namedFailures.end() ? RemoteFailure::other : found->failure;
}

QString describe(RemoteFailure failure, const QString& message)
{
    switch (failure) {
    case RemoteFailure::notRunning:
        return JoinTexts::tr("NetworkManager is not running");
    case RemoteFailure::noAnswer:
        return JoinTexts::tr("NetworkManager does not answer");
    case RemoteFailure::permissionDenied:
        return JoinTexts::tr("NetworkManager does not permit this: %1").arg(message);
    case RemoteFailure::notAllowed:
        return JoinTexts::tr("NetworkManager cannot do this now: %1").arg(message);
    case RemoteFailure::unknownObject:
        return JoinTexts::tr("NetworkManager does not know the device: %1").arg(message);
    case RemoteFailure::wrongAnswer:
        return JoinTexts::tr("NetworkManager gave an answer of a wrong type: %1").arg(message);
    case RemoteFailure::other:
        break;
    }
    return JoinTexts::tr("NetworkManager reports an error: %1").arg(message);
}

} // namespace

RemoteError notRunning()
{
    return {RemoteFailure::notRunning, describe(RemoteFailure::notRunning, {})};
}

RemoteError remoteError(const QDBusError& error)
{
    const auto failure = failureNamed(error.name());
    return {failure, describe(failure, error.message())};
}

} // namespace aerolith
