#pragma once

#include "platform/linux/networkmanager/BusEnd.h"
#include "platform/linux/networkmanager/DBusTypes.h"
#include "platform/linux/networkmanager/DecliningAgent.h"
#include "platform/linux/networkmanager/NetworkManager.h"
#include "platform/linux/networkmanager/RemoteError.h"

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

#include <atomic>
#include <chrono>
#include <optional>

namespace aerolith {

enum class ActivationOutcome
{
    activated,
    /// NetworkManager gave up, or somebody made it.
    failed,
    /// The request was not accepted.
    refused,
    outOfTime,
    stopped,
    /// NetworkManager has left the bus, or the bus has ended.
    vanished,
};

struct ActivationEnd
{
    ActivationOutcome outcome = ActivationOutcome::stopped;
    /// Only where refused.
    RemoteError refusal = {};
    /// The newest state of the device, and why it left the road to `activated`, as NetworkManager numbers the
    /// reasons.
    DeviceState state = DeviceState::unknown;
    quint32 reason = 0;
    /// The objects of the profile, which is the stored one or the new one, and of the active connection;
    /// empty where NetworkManager made none.
    QString profilePath = {};
    QString activePath = {};
};

/// The objects that NetworkManager has made for an activation.
struct ActivationObjects
{
    /// Empty where the profile was there before.
    QString profilePath;
    QString activePath;
};

/// Reads the answer to a request to activate, argument by argument; absent where it names no object.
[[nodiscard]] std::optional<ActivationObjects> activationObjects(const QVariantList& arguments);

/// One activation of a connection profile on one device, followed from its request to its end. Lives on one
/// thread.
class Activation : public QObject
{
    Q_OBJECT

public:
    /// NetworkManager gives the access point 25 seconds and then the network's DHCP server 45; a person who
    /// waits for both is not served.
    static constexpr std::chrono::milliseconds usualTimeLimit = std::chrono::seconds(60);

    /// Watches the device from here on. `manager`, which is to handle events while it waits, outlives this
    /// object.
    Activation(const NetworkManager& manager, QString devicePath,
               std::chrono::milliseconds timeLimit = usualTimeLimit);

    /// Activates a stored profile, or a new one that vanishes unless the activation succeeds and the profile
    /// is then kept. `accessPointPath` may be the root path, for any.
    ///
    /// Blocks until the outcome is there, the time limit after NetworkManager has accepted the request at the
    /// latest, or until `stopped` is set or the application quits; what NetworkManager is still at then is
    /// ended, for which its answer is waited for two seconds more. It accepts when the user has proved who
    /// they are, where the system asks, for which there are ten minutes. Meanwhile the thread handles its
    /// events, all but the user's input. To be called once.
    [[nodiscard]] ActivationEnd activate(const QString& profilePath, const QString& accessPointPath,
                                         const std::atomic<bool>& stopped);
    [[nodiscard]] ActivationEnd activateNew(const ConnectionSettings& settings,
                                            const QString& accessPointPath, const std::atomic<bool>& stopped);

private Q_SLOTS:
    void deviceStateChanged(uint state, uint oldState, uint reason);
    void activeStateChanged(uint state, uint reason, const QDBusMessage& signal);

private:
    [[nodiscard]] ActivationEnd follow(const QDBusMessage& request, const std::atomic<bool>& stopped);
    void take(const QDBusPendingCall& answer);
    void checkEnd();
    void finish(ActivationOutcome outcome);

    const NetworkManager& m_manager;
    const QString m_devicePath;
    const std::chrono::milliseconds m_timeLimit;
    DecliningAgent m_agent;
    QDBusServiceWatcher m_serviceWatcher;
    BusEnd m_busEnd;
    QEventLoop m_loop;
    QDeadlineTimer m_deadline = QDeadlineTimer::Forever;
    bool m_isAnswered = false;
    /// The newest state of every active connection that has changed: the answer, which says which is ours,
    /// may come later.
    QHash<QString, uint> m_activeStates;
    ActivationEnd m_end;
};

} // namespace aerolith
