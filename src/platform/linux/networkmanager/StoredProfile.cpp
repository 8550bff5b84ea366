#include "platform/linux/networkmanager/StoredProfile.h"

#include "platform/Secret.h"
#include "platform/linux/networkmanager/AwaitCall.h"
#include "platform/linux/networkmanager/Call.h"
#include "platform/linux/networkmanager/JoinSettings.h"

#include <org.freedesktop.NetworkManager.Device.h>
#include <org.freedesktop.NetworkManager.Settings.Connection.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

using DeviceProxy = OrgFreedesktopNetworkManagerDeviceInterface;
using ProfileProxy = OrgFreedesktopNetworkManagerSettingsConnectionInterface;

constexpr uint toDisk = 0x1;

Failure update(const BusConnection& bus, const QString& path, const ConnectionSettings& settings)
{
    Call<ProfileProxy> call(bus, path);
    auto updated = call.proxy().Update2(settings, toDisk, {});
    updated.waitForFinished();
    return updated.isError() ? Failure(remoteError(updated.error()).error()) : std::nullopt;
}

} // namespace

std::optional<StoredProfile> storedProfile(const BusConnection& bus, const QString& devicePath,
                                           const CWNetwork& network)
{
    const auto paths = read(bus, devicePath, &DeviceProxy::availableConnections);
    if (!paths.ok()) {
        return {};
    }
    QList<StoredProfile> profiles;
    for (const auto& path : paths.value()) {
        Call<ProfileProxy> call(bus, path.path());
        auto settings = call.proxy().GetSettings();
        settings.waitForFinished();
        if (!settings.isError()) {
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
    awaitCall(secrets);
    if (!secrets.isFinished()) {
        return Error{u"NetworkManager has not answered yet"_s};
    }
    if (secrets.isError()) {
        return false;
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
