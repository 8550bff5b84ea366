#include "platform/linux/networkmanager/PermissionLink.h"

#include "platform/linux/networkmanager/BusEnd.h"
#include "platform/linux/networkmanager/NetworkManager.h"
#include "platform/linux/networkmanager/PolkitAuthority.h"

#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <org.freedesktop.NetworkManager.h>
#include <utility>

namespace aerolith {

using namespace std::chrono_literals;

namespace {

constexpr auto retryInterval = 2s;

} // namespace

struct PermissionLink::Connection
{
    explicit Connection(const BusAddress& address)
        : bus(address)
        , end(bus)
        , serviceWatcher(NetworkManager::serviceName, bus.connection())
        , manager(NetworkManager::serviceName, NetworkManager::objectPath, bus.connection())
        , polkit(bus.connection())
    {
    }

    BusConnection bus;
    BusEnd end;
    QDBusServiceWatcher serviceWatcher;
    OrgFreedesktopNetworkManagerInterface manager;
    /// Some versions of NetworkManager (1.42) keep polkit's changes to themselves.
    PolkitAuthority polkit;
};

PermissionLink::PermissionLink(BusAddress address) : m_address(std::move(address))
{
    m_retry.setInterval(retryInterval);
    connect(&m_retry, &QTimer::timeout, this, &PermissionLink::connectAgain);
    connectToBus();
}

PermissionLink::~PermissionLink() = default;

bool PermissionLink::isNetworkManagerRunning() const
{
    return NetworkManager::isRunningOn(m_connection->bus);
}

QDBusPendingCall PermissionLink::permissions(std::chrono::milliseconds limit)
{
    m_connection->manager.setTimeout(static_cast<int>(limit.count()));
    return m_connection->manager.GetPermissions();
}

QDBusPendingCall PermissionLink::devices()
{
    return m_connection->manager.GetDevices();
}

QDBusPendingCall PermissionLink::call(const QDBusMessage& message, int limitMilliseconds)
{
    return m_connection->bus.connection().asyncCall(message, limitMilliseconds);
}

void PermissionLink::connectToBus()
{
    m_connection = std::make_unique<Connection>(m_address);
    if (!m_connection->bus.connection().isConnected()) {
        m_retry.start();
        return;
    }
    m_retry.stop();
    connect(&m_connection->end, &BusEnd::reached, this, [this] {
        m_retry.start();
        Q_EMIT runningChanged(false);
    });
    connect(&m_connection->manager, &OrgFreedesktopNetworkManagerInterface::CheckPermissions, this,
            &PermissionLink::permissionsMayHaveChanged);
    connect(&m_connection->polkit, &PolkitAuthority::Changed, this,
            &PermissionLink::permissionsMayHaveChanged);
    connect(&m_connection->serviceWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) {
                Q_EMIT runningChanged(!owner.isEmpty());
            });
}

void PermissionLink::connectAgain()
{
    connectToBus();
    if (isNetworkManagerRunning()) {
        Q_EMIT runningChanged(true);
    }
}

} // namespace aerolith
