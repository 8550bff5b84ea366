#pragma once

#include "platform/linux/networkmanager/BusConnection.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>

namespace aerolith {

/// The bus as ScanPermission needs it: with NetworkManager and polkit on it, and found again after its end,
/// which a connection does not outlive. Main thread; needs its event loop.
class PermissionLink : public QObject
{
    Q_OBJECT

public:
    explicit PermissionLink(BusAddress address);
    ~PermissionLink() override;

    [[nodiscard]] bool isNetworkManagerRunning() const;

    /// Calls to NetworkManager, for every permission of this user's and for its devices.
    [[nodiscard]] QDBusPendingCall permissions(std::chrono::milliseconds limit);
    [[nodiscard]] QDBusPendingCall devices();

    /// Any other call.
    [[nodiscard]] QDBusPendingCall call(const QDBusMessage& message, int limitMilliseconds);

Q_SIGNALS:
    /// NetworkManager or polkit says so.
    void permissionsMayHaveChanged();
    /// NetworkManager has come or gone, maybe with its bus.
    void runningChanged(bool running);

private:
    struct Connection;

    void connectToBus();
    void connectAgain();

    const BusAddress m_address;
    std::unique_ptr<Connection> m_connection;
    /// Runs while there is no bus.
    QTimer m_retry;
};

} // namespace aerolith
