#include "platform/linux/networkmanager/ScanPermission.h"

#include "platform/linux/networkmanager/DBusTypes.h"
#include "platform/linux/networkmanager/InteractiveCall.h"
#include "platform/linux/networkmanager/NetworkManager.h"
#include "platform/linux/networkmanager/PermissionLink.h"
#include "platform/linux/networkmanager/RemoteError.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <chrono>
#include <limits>
#include <org.freedesktop.NetworkManager.Device.Wireless.h>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto firstReadLimit = 1s;
constexpr auto readLimit = 25s;
// As long as the user takes to find the password; in D-Bus the largest value means no limit.
constexpr int askTimeoutMilliseconds = std::numeric_limits<int>::max();

} // namespace

ScanPermission::ScanPermission(const BusAddress& address, std::function<void()> changed)
    : m_changed(std::move(changed)), m_calls(std::make_unique<QObject>())
{
    registerDBusTypes();
    m_link = std::make_unique<PermissionLink>(address);
    QObject::connect(m_link.get(), &PermissionLink::permissionsMayHaveChanged, m_calls.get(),
                     [this] { read(); });
    QObject::connect(m_link.get(), &PermissionLink::runningChanged, m_calls.get(),
                     [this](bool running) { setRunning(running); });
    readFirst();
}

ScanPermission::~ScanPermission()
{
    m_calls.reset();
}

void ScanPermission::ask()
{
    if (m_state != State::undecided || m_asking != Asking::no) {
        return;
    }
    // Before the first answer nothing tells whether there is anything to ask: the request itself would scan,
    // or be refused.
    if (m_answer == Answer::unread) {
        m_asking = Asking::onceRead;
    } else {
        askUser();
    }
}

void ScanPermission::askUser()
{
    m_asking = Asking::underWay;
    watch(m_link->devices(), [this](const QDBusPendingCall& call) {
        const QDBusPendingReply<QList<QDBusObjectPath>> reply = call;
        QStringList paths;
        if (!reply.isError()) {
            for (const auto& path : reply.value()) {
                paths.append(path.path());
            }
        }
        askDevices(paths);
    });
}

// Only a Wi-Fi device understands the request. Where none is left there is nothing to refuse either.
void ScanPermission::askDevices(const QStringList& paths)
{
    if (paths.isEmpty()) {
        decide(true);
        return;
    }
    const auto message = interactiveCall(
        paths.first(), OrgFreedesktopNetworkManagerDeviceWirelessInterface::staticInterfaceName(),
        u"RequestScan"_s, {scanOptions({})});
    watch(m_link->call(message, askTimeoutMilliseconds),
          [this, others = paths.mid(1)](const QDBusPendingCall& call) {
              if (!call.isError()) {
                  decide(true);
                  return;
              }
              const auto failure = remoteError(call.error()).failure;
              if (failure == RemoteFailure::unknownObject) {
                  askDevices(others);
                  return;
              }
              // A device that is merely unable to scan now says nothing about permission: let the scan tell.
              decide(failure != RemoteFailure::permissionDenied);
          });
}

void ScanPermission::decide(bool granted)
{
    m_asking = Asking::no;
    if (m_running) {
        m_decision = granted;
        update();
    }
}

void ScanPermission::readFirst()
{
    m_running = m_link->isNetworkManagerRunning();
    if (m_running) {
        QDBusPendingReply<PermissionMap> reply = m_link->permissions(firstReadLimit);
        reply.waitForFinished();
        if (reply.isError() && remoteError(reply.error()).failure == RemoteFailure::noAnswer) {
            read();
        } else {
            take(reply);
        }
    }
    m_state = derivedState();
}

void ScanPermission::read()
{
    watch(m_link->permissions(readLimit), [this, number = ++m_reads](const QDBusPendingCall& call) {
        if (number == m_reads) {
            take(call);
            update();
            askIfWaiting();
        }
    });
}

// Also where there was no answer in time: the request then finds out.
void ScanPermission::askIfWaiting()
{
    if (m_asking != Asking::onceRead) {
        return;
    }
    m_asking = Asking::no;
    if (m_state == State::undecided) {
        askUser();
    }
}

void ScanPermission::take(const QDBusPendingCall& call)
{
    const QDBusPendingReply<PermissionMap> reply = call;
    if (reply.isError()) {
        // Silence says nothing new; the watcher notices when NetworkManager is gone.
        if (remoteError(reply.error()).failure == RemoteFailure::wrongAnswer) {
            setAnswer(Answer::no);
        }
        return;
    }
    const auto permission = reply.value().value(u"org.freedesktop.NetworkManager.wifi.scan"_s);
    setAnswer(permission == u"yes"_s    ? Answer::yes
              : permission == u"auth"_s ? Answer::authentication
                                        : Answer::no);
}

void ScanPermission::setRunning(bool running)
{
    m_running = running;
    ++m_reads;
    if (running) {
        read();
    } else {
        setAnswer(Answer::unread);
        update();
    }
}

void ScanPermission::setAnswer(Answer answer)
{
    m_answer = answer;
    if (answer != Answer::authentication) {
        m_decision.reset();
    }
}

void ScanPermission::update()
{
    if (const auto state = derivedState(); state != m_state) {
        m_state = state;
        m_changed();
    }
}

ScanPermission::State ScanPermission::derivedState() const
{
    if (!m_running) {
        return State::granted;
    }
    switch (m_answer) {
    case Answer::yes:
        return State::granted;
    case Answer::no:
        return State::refused;
    case Answer::unread:
    case Answer::authentication:
        break;
    }
    if (!m_decision) {
        return State::undecided;
    }
    return *m_decision ? State::granted : State::refused;
}

void ScanPermission::watch(const QDBusPendingCall& call, const Finished& finished)
{
    auto* watcher = new QDBusPendingCallWatcher(call, m_calls.get());
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, m_calls.get(),
                     [finished](QDBusPendingCallWatcher* done) {
                         done->deleteLater();
                         finished(*done);
                     });
}

} // namespace aerolith
