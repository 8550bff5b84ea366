#include "platform/linux/networkmanager/NetworkManager.h"

#include "platform/linux/networkmanager/AwaitCall.h"
#include "platform/linux/networkmanager/Call.h"
#include "platform/linux/networkmanager/DBusTypes.h"
#include "platform/linux/networkmanager/MainThread.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <org.freedesktop.NetworkManager.AccessPoint.h>
#include <org.freedesktop.NetworkManager.Device.Wireless.h>
#include <org.freedesktop.NetworkManager.Device.h>
#include <org.freedesktop.NetworkManager.h>

namespace aerolith {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using ManagerProxy = OrgFreedesktopNetworkManagerInterface;
using DeviceProxy = OrgFreedesktopNetworkManagerDeviceInterface;
using WirelessProxy = OrgFreedesktopNetworkManagerDeviceWirelessInterface;
using AccessPointProxy = OrgFreedesktopNetworkManagerAccessPointInterface;

const auto wirelessInterface = u"org.freedesktop.NetworkManager.Device.Wireless"_s;
const auto accessPointInterface = u"org.freedesktop.NetworkManager.AccessPoint"_s;

constexpr auto switchTimeLimit = 10s;
constexpr auto switchPollInterval = 50ms;

} // namespace

const QString NetworkManager::serviceName = u"org.freedesktop.NetworkManager"_s;
const QString NetworkManager::objectPath = u"/org/freedesktop/NetworkManager"_s;

NetworkManager::NetworkManager(const BusAddress& address, std::chrono::milliseconds callLimit)
    : m_bus(address, callLimit)
{
    registerDBusTypes();
}

NetworkManager::~NetworkManager() = default;

bool NetworkManager::isRunning() const
{
    const auto* bus = m_bus.connection().interface();
    return bus != nullptr && bus->isServiceRegistered(serviceName).value();
}

Failure NetworkManager::awaitAnswer() const
{
    if (!isMainThread()) {
        return {};
    }
    auto question = QDBusMessage::createMethodCall(serviceName, objectPath,
                                                   u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << QString::fromLatin1(ManagerProxy::staticInterfaceName()) << u"WirelessEnabled"_s;
    const auto answer = m_bus.connection().asyncCall(question, static_cast<int>(m_bus.callLimit().count()));
    awaitCall(answer);
    if (!answer.isFinished()) {
        return Error{u"NetworkManager has not answered yet"_s};
    }
    return answer.isError() ? Failure(remoteError(answer.error()).error()) : Failure();
}

Result<RadioSwitches> NetworkManager::radioSwitches() const
{
    const auto enabled = read(m_bus, objectPath, &ManagerProxy::wirelessEnabled);
    if (!enabled.ok()) {
        return enabled.error();
    }
    const auto hardwareEnabled = read(m_bus, objectPath, &ManagerProxy::wirelessHardwareEnabled);
    if (!hardwareEnabled.ok()) {
        return hardwareEnabled.error();
    }
    return RadioSwitches{.enabled = enabled.value(), .hardwareEnabled = hardwareEnabled.value()};
}

std::optional<RemoteError> NetworkManager::setWirelessEnabled(bool enabled) const
{
    Call<ManagerProxy> call(m_bus, objectPath);
    call.proxy().setWirelessEnabled(enabled);
    const auto failure = call.failure();
    // The answer to a property's change does not wait for the permission check behind it.
    return failure ? failure : awaitSwitch(enabled);
}

std::optional<RemoteError> NetworkManager::awaitSwitch(bool enabled) const
{
    std::optional<RemoteError> end =
        RemoteError{RemoteFailure::noAnswer, u"NetworkManager did not switch the Wi-Fi radio"_s};
    const QDeadlineTimer deadline(switchTimeLimit);
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        const auto now = read(m_bus, objectPath, &ManagerProxy::wirelessEnabled);
        if (!now.ok()) {
            end = RemoteError{RemoteFailure::other, now.error().description};
        } else if (now.value() == enabled) {
            end.reset();
        } else if (!deadline.hasExpired()) {
            return;
        }
        loop.quit();
    });
    poll.start(switchPollInterval);
    // Also returns when the application quits.
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return end;
}

Result<std::optional<ManagedDevice>> NetworkManager::device(const QString& interfaceName) const
{
    Call<ManagerProxy> call(m_bus, objectPath);
    auto path = call.proxy().GetDeviceByIpIface(interfaceName);
    path.waitForFinished();
    if (path.isError()) {
        const auto error = remoteError(path.error());
        if (error.failure == RemoteFailure::unknownObject) {
            return std::optional<ManagedDevice>();
        }
        return error.error();
    }
    const auto state = read(m_bus, path.value().path(), &DeviceProxy::stateReason);
    if (!state.ok()) {
        return state.error();
    }
    return std::optional(
        ManagedDevice{.path = path.value().path(), .state = static_cast<DeviceState>(state.value().state)});
}

Result<std::optional<std::chrono::milliseconds>> NetworkManager::lastScan(const QString& devicePath) const
{
    const auto milliseconds = read(m_bus, devicePath, &WirelessProxy::lastScan);
    if (!milliseconds.ok()) {
        return milliseconds.error();
    }
    return lastScanTime(milliseconds.value());
}

std::optional<RemoteError> NetworkManager::requestScan(const QString& devicePath,
                                                       const std::optional<QByteArray>& ssid) const
{
    Call<WirelessProxy> call(m_bus, devicePath);
    auto reply = call.proxy().RequestScan(scanOptions(ssid));
    reply.waitForFinished();
    return reply.isError() ? std::optional(remoteError(reply.error())) : std::nullopt;
}

Result<std::optional<QString>> NetworkManager::activeAccessPointAddress(const QString& devicePath) const
{
    const auto path = read(m_bus, devicePath, &WirelessProxy::activeAccessPoint);
    if (!path.ok()) {
        return path.error();
    }
    // The root path stands for "none".
    if (path.value().path() == u"/"_s) {
        return std::optional<QString>();
    }
    const auto address = read(m_bus, path.value().path(), &AccessPointProxy::hwAddress);
    if (!address.ok()) {
        return address.error();
    }
    return std::optional(address.value().toLower());
}

Result<std::optional<QString>> NetworkManager::accessPoint(const QString& devicePath, const QString& address,
                                                           const QByteArray& ssid) const
{
    // Asking each access point for its name would take as many calls as there are.
    auto question = QDBusMessage::createMethodCall(
        serviceName, u"/org/freedesktop"_s, u"org.freedesktop.DBus.ObjectManager"_s, u"GetManagedObjects"_s);
    QDBusPendingReply<ManagedObjects> answer =
        m_bus.connection().asyncCall(question, static_cast<int>(m_bus.callLimit().count()));
    answer.waitForFinished();
    if (answer.isError()) {
        return remoteError(answer.error()).error();
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
    // One that has ended meanwhile cannot be ended.
    call.proxy().DeactivateConnection(QDBusObjectPath(activePath)).waitForFinished();
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
