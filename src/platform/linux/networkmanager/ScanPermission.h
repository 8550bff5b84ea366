#pragma once

#include "platform/linux/networkmanager/BusConnection.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class QDBusPendingCall;
class QDBusPendingCallWatcher;

namespace aerolith {

class PermissionLink;

/// Whether NetworkManager lets this user scan for Wi-Fi networks, followed as it changes, also over the end
/// of the bus and its new beginning. Main thread; needs its event loop.
class ScanPermission
{
public:
    enum class State
    {
        /// Also where no NetworkManager runs, or no bus: there is nobody to refuse.
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

    /// While undecided, requests a scan for which the system may ask the user for a password, as soon as
    /// NetworkManager has answered that it would. Returns at once; what comes of it holds until the
    /// permission itself changes.
    void ask();

private:
    enum class Answer
    {
        unread,
        yes,
        authentication,
        no
    };

    enum class Asking
    {
        no,
        onceRead,
        underWay
    };

    using Finished = std::function<void(const QDBusPendingCall&)>;

    void readFirst();
    void read();
    void take(const QDBusPendingCall& call);
    void setRunning(bool running);
    void setAnswer(Answer answer);
    void askUser();
    void askIfWaiting();
    void askDevices(const QStringList& paths);
    void decide(bool granted);
    void update();
    [[nodiscard]] State derivedState() const;
    void watch(const QDBusPendingCall& call, const Finished& finished);

    std::function<void()> m_changed;
    std::unique_ptr<PermissionLink> m_link;
    bool m_running = false;
    Answer m_answer = Answer::unread;
    /// What the user's proof came to, while the answer is `authentication`.
    std::optional<bool> m_decision;
    Asking m_asking = Asking::no;
    quint64 m_reads = 0;
    State m_state = State::undecided;
    /// Parent of the calls under way: destroyed first, so that none of them comes back to a destroyed object.
    std::unique_ptr<QObject> m_calls;
};

} // namespace aerolith
