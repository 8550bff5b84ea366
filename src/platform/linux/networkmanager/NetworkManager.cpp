#include "platform/linux/networkmanager/NetworkManager.h"

#include "platform/linux/networkmanager/AwaitCall.h"
#include "platform/linux/networkmanager/Call.h"
#include "platform/linux/networkmanager/DBusTypes.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDeadlineTimer>

#include <org.freedesktop.NetworkManager.Device.Wireless.h>
#include <org.freedesktop.NetworkManager.h>

namespace aerolith {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using ManagerProxy = OrgFreedesktopNetworkManagerInterface;
using WirelessProxy = OrgFreedesktopNetworkManagerDeviceWirelessInterface;

const auto wirelessInterface = u"org.freedesktop.NetworkManager.Device.Wireless"_s;
const auto accessPointInterface = u"org.freedesktop.NetworkManager.AccessPoint"_s;

const auto wirelessEnabled = u"WirelessEnabled"_s;

constexpr auto switchTimeLimit = 10s;
constexpr auto switchPollInterval = 50ms;
constexpr auto lastCallLimit = 2s;

} // namespace

const QString NetworkManager::serviceName = u"org.freedesktop.NetworkManager"_s;
const QString NetworkManager::objectPath = u"/org/freedesktop/NetworkManager"_s;
const QString NetworkManager::deviceInterface = u"org.freedesktop.NetworkManager.Device"_s;

NetworkManager::NetworkManager(const BusAddress& address, std::chrono::milliseconds callLimit)
    : m_bus(address, callLimit)
{
    registerDBusTypes();
}

NetworkManager::NetworkManager(const BusAddress& address, const std::atomic<bool>& stopped)
    : m_bus(address, stopped)
{
    registerDBusTypes();
}

NetworkManager::~NetworkManager() = default;

bool NetworkManager::isRunningOn(const BusConnection& bus)
{
    const auto* daemon = bus.connection().interface();
    return daemon != nullptr && daemon->isServiceRegistered(serviceName).value();
}

Result<RadioSwitches> NetworkManager::radioSwitches() const
{
    const auto enabled = read<bool>(m_bus, objectPath, serviceName, wirelessEnabled);
    if (!enabled.ok()) {
        return enabled.error();
    }
    const auto hardwareEnabled = read<bool>(m_bus, objectPath, serviceName, u"WirelessHardwareEnabled"_s);
    if (!hardwareEnabled.ok()) {
        return hardwareEnabled.error();
    }
    return RadioSwitches{.enabled = enabled.value(), .hardwareEnabled = hardwareEnabled.value()};
}

std::optional<RemoteError> NetworkManager::setWirelessEnabled(bool enabled) const
{
    const auto failure = write(m_bus, objectPath, serviceName, wirelessEnabled, enabled);
    // The answer to a property's change does not wait for the permission check behind it.
    return failure ? failure : awaitSwitch(enabled);
}

std::optional<RemoteError> NetworkManager::awaitSwitch(bool enabled) const
{
    const QDeadlineTimer deadline(switchTimeLimit);
    do {
        const auto now = read<bool>(m_bus, objectPath, serviceName, wirelessEnabled);
        if (!now.ok()) {
            return RemoteError{RemoteFailure::other, now.error().description};
        }
        if (now.value() == enabled) {
            return {};
        }
    } while (!deadline.hasExpired() && m_bus.pause(switchPollInterval));
    return RemoteError{RemoteFailure::noAnswer, u"NetworkManager did not switch the Wi-Fi radio"_s};
}

Result<std::optional<ManagedDevice>> NetworkManager::device(const QString& interfaceName) const
{
    Call<ManagerProxy> call(m_bus, objectPath);
    const auto path = call.proxy().GetDeviceByIpIface(interfaceName);
    if (const auto error = awaitAnswer(m_bus, path)) {
        if (error->failure == RemoteFailure::unknownObject) {
            return std::optional<ManagedDevice>();
        }
        return error->error();
    }
    const auto state = read<DeviceStateReason>(m_bus, path.value().path(), deviceInterface, u"StateReason"_s);
    if (!state.ok()) {
        return state.error();
    }
    return std::optional(
        ManagedDevice{.path = path.value().path(), .state = static_cast<DeviceState>(state.value().state)});
}

Result<std::optional<std::chrono::milliseconds>> NetworkManager::lastScan(const QString& devicePath) const
{
    const auto milliseconds = read<qlonglong>(m_bus, devicePath, wirelessInterface, u"LastScan"_s);
    if (!milliseconds.ok()) {
        return milliseconds.error();
    }
    return lastScanTime(milliseconds.value());
}

std::optional<RemoteError> NetworkManager::requestScan(const QString& devicePath,
                                                       const std::optional<QByteArray>& ssid) const
{
    Call<WirelessProxy> call(m_bus, devicePath);
    return awaitAnswer(m_bus, call.proxy().RequestScan(scanOptions(ssid)));
}

Result<std::optional<QString>> NetworkManager::activeAccessPointAddress(const QString& devicePath) const
{
    const auto path = read<QDBusObjectPath>(m_bus, devicePath, wirelessInterface, u"ActiveAccessPoint"_s);
    if (!path.ok()) {
        return path.error();
    }
    // The root path stands for "none".
    if (path.value().path() == u"/"_s) {
        return std::optional<QString>();
    }
    const auto address = read<QString>(m_bus, path.value().path(), accessPointInterface, u"HwAddress"_s);
    if (!address.ok()) {
        return address.error();
    }
    return std::optional(address.value().toLower());
}

Result<std::optional<QString>> NetworkManager::accessPoint(const QString& devicePath, const QString& address,
                                                           const QByteArray& ssid) const
{
    // Asking each access point for its name would take as many calls as there are.
    const QDBusPendingReply<ManagedObjects> answer = callMethod(
        m_bus, u"/org/freedesktop"_s, u"org.freedesktop.DBus.ObjectManager"_s, u"GetManagedObjects"_s);
    if (const auto error = awaitAnswer(m_bus, answer)) {
        return error->error();
    }
    const auto objects = answer.value();
    const auto device = objects[QDBusObjectPath(devicePath)][wirelessInterface];
    std::optional<QString> sameName;
    for (const auto& path : qdbus_cast<QList<QDBusObjectPath>>(device[u"AccessPoints"_s])) {
        const auto heard = objects[path][accessPointInterface];
        if (heard[u"Ssid"_s].toByteArray() != ssid) {
            continue;
        }
        sameName = path.path();
        if (heard[u"HwAddress"_s].toString().toLower() == address) {
            break;
        }
    }
    return sameName;
}

void NetworkManager::deactivate(const QString& activePath) const
{
    Call<ManagerProxy> call(m_bus, objectPath);
    // Wakes the loop. One that has ended meanwhile cannot be ended.
    const QDBusPendingCallWatcher answer(call.proxy().DeactivateConnection(QDBusObjectPath(activePath)));
    awaitAtEnd([&answer] { return answer.isFinished(); }, lastCallLimit);
}

std::optional<std::chrono::milliseconds> lastScanTime(qint64 milliseconds)
{
    // Clocks count nanoseconds.
    constexpr auto latest = std::chrono::floor<std::chrono::milliseconds>(std::chrono::nanoseconds::max());
    return milliseconds < 0 || milliseconds > latest.count()
               ? std::nullopt
               : std::optional(std::chrono::milliseconds(milliseconds));
}

QVariantMap scanOptions(const std::optional<QByteArray>& ssid)
{
    if (!ssid) {
        return {};
    }
    return {{u"ssids"_s, QVariant::fromValue(QList<QByteArray>{*ssid})}};
}

} // namespace aerolith
