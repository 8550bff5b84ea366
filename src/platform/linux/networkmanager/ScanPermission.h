#pragma once

#include "platform/linux/networkmanager/BusConnection.h"

#include <QDBusServiceWatcher>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class OrgFreedesktopNetworkManagerInterface;
class QDBusObjectPath;
class QDBusPendingCall;
class QDBusPendingCallWatcher;

namespace aerolith {

class PolkitAuthority;

/// Whether NetworkManager lets this user scan for Wi-Fi networks, followed as it changes. Main thread; needs
/// its event loop.
class ScanPermission
{
public:
    enum class State
    {
        /// Also where no NetworkManager runs: there is nobody to refuse.
        granted,
        /// The user has to prove who they are first, or NetworkManager has not answered yet.
        undecided,
        /// Also where NetworkManager cannot tell, as without polkit: it then refuses every request.
        refused,
    };

    /// Blocks for the first answer, at most one second. `changed` is called after every change of state(),
    /// never from within a call into this object.
    ScanPermission(const BusAddress& address, std::function<void()> changed);
    ScanPermission(const ScanPermission&) = delete;
    ScanPermission& operator=(const ScanPermission&) = delete;
    ~ScanPermission();

    /// As last known; does not block.
    [[nodiscard]] State state() const { return m_state; }

    /// While undecided, requests a scan for which the system may ask the user for a password. Returns at
    /// once; what comes of it holds until the permission itself changes.
    void ask();

private:
    enum class Answer
    {
        unread,
        yes,
        authentication,
        no
    };

    using Finished = std::function<void(const QDBusPendingCall&)>;

    void readFirst();
    void read();
    void take(const QDBusPendingCall& call);
    void setRunning(bool running);
    void setAnswer(Answer answer);
    void askDevices(const QStringList& paths);
    void decide(bool granted);
    void update();
    [[nodiscard]] State derivedState() const;
    void watch(const QDBusPendingCall& call, const Finished& finished);

    BusConnection m_bus;
    std::function<void()> m_changed;
    QDBusServiceWatcher m_serviceWatcher;
    std::unique_ptr<OrgFreedesktopNetworkManagerInterface> m_manager;
    std::unique_ptr<PolkitAuthority> m_polkit;
    bool m_running = false;
    Answer m_answer = Answer::unread;
    /// What the user's proof came to, while the answer is `authentication`.
    std::optional<bool> m_decision;
    bool m_asking = false;
    quint64 m_reads = 0;
    State m_state = State::undecided;
    /// Parent of the calls under way: destroyed first, so that none of them comes back to a destroyed object.
    std::unique_ptr<QObject> m_calls;
};

} // namespace aerolith
