#pragma once

#include "platform/linux/networkmanager/DBusTypes.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QHash>
#include <QMap>
#include <QMutex>
#include <QString>
#include <QThread>
#include <QVariant>

#include <functional>

namespace aerolith {

/// NetworkManager on a bus of the test's own: one Wi-Fi device, wlan0, disconnected, radio on, every
/// permission. It answers on a thread of its own, so that a test may block in a call to it. What it answers
/// is set by any thread.
class FakeNetworkManager : public QDBusVirtualObject
{
public:
    /// What to make of a call: its reply or error; an invalid message ends the service without an answer.
    using Reaction = std::function<QDBusMessage(const QDBusMessage& call)>;

    static const QString devicePath;
    static const QString accessPointPath;
    /// What every activation makes: an active connection, and a profile if it was to be a new one.
    static const QString activePath;
    static const QString newProfilePath;

    /// Stands on the bus until the end of the object, or of end().
    explicit FakeNetworkManager(const QString& busAddress);
    ~FakeNetworkManager() override;

    /// Leaves the bus as a process does that is killed.
    void end();

    /// The permission to scan; the bus is told by polkit, in whose name the fake stands there too.
    void setScanPermission(const QString& toScan);
    /// NetworkManager's own word that permissions may have changed.
    void emitCheckPermissions();

    /// How activations go on once accepted: the device's states with their reasons, then that of the active
    /// connection (2: activated, 4: deactivated).
    void setActivation(const QList<DeviceStateReason>& states, quint32 activeState);
    void tellDeviceState(DeviceStateReason state);
    void tellActiveState(quint32 state);

    /// Asks the secret agent of whoever sent `call` about the profile, by this call, on the next turn of the
    /// service's own loop; hands on the name of the error that it answers with.
    void askAgent(const QDBusMessage& call, const QString& member, const QString& profilePath, uint flags,
                  const std::function<void(const QString& error)>& answered);

    /// By the last part of the interface's name and the property's, such as "Wireless.LastScan".
    void setProperty(const QString& name, const QVariant& value);

    /// Replaces the answer to a method, or by "Get Wireless.LastScan" and "Set ..." the one to a property's
    /// call.
    void on(const QString& member, const Reaction& reaction);

    /// Is told of every call, by its name, before that is answered; on the service's own thread.
    void beforeEach(const std::function<void(const QString& member)>& told);

    /// Calls of that name so far, as on() names them.
    [[nodiscard]] QList<QDBusMessage> calls(const QString& member) const;

    [[nodiscard]] QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    void leaveBus();
    void tell(const QString& path, const QString& interface, const QString& signal,
              const QVariantList& arguments = {});
    void followActivation();
    [[nodiscard]] QDBusMessage answer(const QString& member, const QDBusMessage& call);
    [[nodiscard]] QDBusMessage usualAnswer(const QString& member, const QDBusMessage& call);

    const QString m_connectionName;
    mutable QMutex m_mutex;
    QMap<QString, QVariant> m_properties;
    QHash<QString, Reaction> m_reactions;
    std::function<void(const QString&)> m_beforeEach;
    QList<std::pair<QString, QDBusMessage>> m_calls;
    QList<DeviceStateReason> m_activationStates;
    quint32 m_activeState = 2;
    QThread m_thread;
};

/// Adds a Wi-Fi device that hears these access points, or an access point, to what there is.
void addDevice(ManagedObjects& objects, const QString& path, const QStringList& accessPoints);
void addAccessPoint(ManagedObjects& objects, const QString& path, const QString& address,
                    const QByteArray& ssid);

/// Whether the main thread, which waits for the service meanwhile, handles an event.
[[nodiscard]] bool mainThreadLives();

/// Reactions that several tests use.
[[nodiscard]] FakeNetworkManager::Reaction vanish();
[[nodiscard]] FakeNetworkManager::Reaction refuse(const QString& errorName);
[[nodiscard]] FakeNetworkManager::Reaction reply(const QVariant& value);

} // namespace aerolith
