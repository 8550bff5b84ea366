#include "platform/linux/networkmanager/StoredProfile.h"

#include "platform/Secret.h"
#include "platform/linux/networkmanager/Call.h"
#include "platform/linux/networkmanager/JoinSettings.h"

#include <org.freedesktop.NetworkManager.Settings.Connection.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

using ProfileProxy = OrgFreedesktopNetworkManagerSettingsConnectionInterface;

constexpr uint toDisk = 0x1;

Failure update(const BusConnection& bus, const QString& path, const ConnectionSettings& settings)
{
    Call<ProfileProxy> call(bus, path);
    const auto failure = awaitAnswer(bus, call.proxy().Update2(settings, toDisk, {}));
    return failure ? Failure(failure->error()) : std::nullopt;
}

} // namespace

Result<std::optional<StoredProfile>> storedProfile(const BusConnection& bus, const QString& devicePath,
                                                   const CWNetwork& network)
{
    const auto paths = read<QList<QDBusObjectPath>>(bus, devicePath, NetworkManager::deviceInterface,
                                                    u"AvailableConnections"_s);
    if (!paths.ok()) {
        return paths.error();
    }
    QList<StoredProfile> profiles;
    for (const auto& path : paths.value()) {
        Call<ProfileProxy> call(bus, path.path());
        const auto settings = call.proxy().GetSettings();
        const auto failure = awaitAnswer(bus, settings);
        if (failure && failure->failure == RemoteFailure::noAnswer) {
            return failure->error();
        }
        if (!failure) {
            profiles.append({path.path(), settings.value()});
        }
    }
    return newestProfile(profiles, network);
}

std::optional<StoredProfile> newestProfile(const QList<StoredProfile>& profiles, const CWNetwork& network)
{
    std::optional<StoredProfile> newest;
    qulonglong newestUse = 0;
    for (const auto& profile : profiles) {
        const auto name = profile.settings[wirelessSection].value(u"ssid"_s).toByteArray();
        if (name != network.ssidData || !fitsSecurity(profile.settings, network)) {
            continue;
        }
        const auto used = profile.settings[u"connection"_s].value(u"timestamp"_s).toULongLong();
        if (!newest || used > newestUse) {
            newest = profile;
            newestUse = used;
        }
    }
    return newest;
}

Result<bool> hasPassword(const BusConnection& bus, const StoredProfile& profile,
                         const ConnectionSettings& settings)
{
    const auto name = passwordSetting(settings);
    if (name.isEmpty()) {
        return true;
    }
    Call<ProfileProxy> call(bus, profile.path);
    auto secrets = call.proxy().GetSecrets(securitySection);
    if (const auto failure = awaitAnswer(bus, secrets)) {
        return secrets.isFinished() ? Result<bool>(false) : failure->error();
    }
    auto stored = secrets.value()[securitySection].value(name).toString();
    const auto isSame = stored == settings[securitySection].value(name).toString();
    wipe(stored);
    return isSame;
}

ConnectionSettings withPassword(const StoredProfile& profile, const ConnectionSettings& settings)
{
    auto changed = profile.settings;
    const auto name = passwordSetting(settings);
    changed[securitySection][name] = settings[securitySection].value(name);
    return changed;
}

Failure storePassword(const BusConnection& bus, const StoredProfile& profile,
                      const ConnectionSettings& settings)
{
    return update(bus, profile.path, withPassword(profile, settings));
}

Failure keepProfile(const BusConnection& bus, const QString& path)
{
    // No settings: those that it has.
    return update(bus, path, {});
}

} // namespace aerolith
