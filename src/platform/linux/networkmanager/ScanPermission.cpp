#include "platform/linux/networkmanager/ScanPermission.h"

#include "platform/linux/networkmanager/BusEnd.h"
#include "platform/linux/networkmanager/DBusTypes.h"
#include "platform/linux/networkmanager/InteractiveCall.h"
#include "platform/linux/networkmanager/NetworkManager.h"
#include "platform/linux/networkmanager/PolkitAuthority.h"
#include "platform/linux/networkmanager/RemoteError.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <chrono>
#include <limits>
#include <org.freedesktop.NetworkManager.Device.Wireless.h>
#include <org.freedesktop.NetworkManager.h>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto retryInterval = 2s;
constexpr int firstReadTimeoutMilliseconds = 1'000;
constexpr int readTimeoutMilliseconds = 25'000;
// As long as the user takes to find the password; in D-Bus the largest value means no limit.
constexpr int askTimeoutMilliseconds = std::numeric_limits<int>::max();

} // namespace

struct ScanPermission::Link
{
    explicit Link(const BusAddress& address)
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

ScanPermission::ScanPermission(const BusAddress& address, std::function<void()> changed)
    : m_address(address), m_changed(std::move(changed)), m_calls(std::make_unique<QObject>())
{
    registerDBusTypes();
    m_retry.setInterval(retryInterval);
    QObject::connect(&m_retry, &QTimer::timeout, m_calls.get(), [this] { connectAgain(); });
    connectToBus();
    readFirst();
}

ScanPermission::~ScanPermission()
{
    m_calls.reset();
}

void ScanPermission::connectToBus()
{
    m_link = std::make_unique<Link>(m_address);
    if (!m_link->bus.connection().isConnected()) {
        m_retry.start();
        return;
    }
    m_retry.stop();
    QObject::connect(&m_link->end, &BusEnd::reached, m_calls.get(), [this] {
        setRunning(false);
        m_retry.start();
    });
    QObject::connect(&m_link->manager, &OrgFreedesktopNetworkManagerInterface::CheckPermissions,
                     m_calls.get(), [this] { read(); });
    QObject::connect(&m_link->polkit, &PolkitAuthority::Changed, m_calls.get(), [this] { read(); });
    QObject::connect(
        &m_link->serviceWatcher, &QDBusServiceWatcher::serviceOwnerChanged, m_calls.get(),
        [this](const QString&, const QString&, const QString& owner) { setRunning(!owner.isEmpty()); });
}

void ScanPermission::connectAgain()
{
    connectToBus();
    if (NetworkManager::isRunningOn(m_link->bus)) {
        setRunning(true);
    }
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
    watch(m_link->manager.GetDevices(), [this](const QDBusPendingCall& call) {
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
    watch(m_link->bus.connection().asyncCall(message, askTimeoutMilliseconds),
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
    m_running = NetworkManager::isRunningOn(m_link->bus);
    if (m_running) {
        m_link->manager.setTimeout(firstReadTimeoutMilliseconds);
        auto reply = m_link->manager.GetPermissions();
        reply.waitForFinished();
        m_link->manager.setTimeout(readTimeoutMilliseconds);
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
    watch(m_link->manager.GetPermissions(), [this, number = ++m_reads](const QDBusPendingCall& call) {
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
