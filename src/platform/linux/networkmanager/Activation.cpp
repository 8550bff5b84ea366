#include "platform/linux/networkmanager/Activation.h"

#include "platform/linux/networkmanager/AwaitCall.h"
#include "platform/linux/networkmanager/InteractiveCall.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QTimer>

#include <org.freedesktop.NetworkManager.h>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// For the user to prove who they are, where the system asks. Some limit there has to be: NetworkManager may
// hang.
constexpr int answerTimeoutMilliseconds = 600'000;
constexpr auto checkInterval = 100ms;
/// For an answer that is only needed to take the request back.
constexpr auto lastAnswerLimit = 2s;

constexpr auto managerInterface = &OrgFreedesktopNetworkManagerInterface::staticInterfaceName;

/// NetworkManager's states of an active connection.
constexpr uint activeActivated = 2;
constexpr uint activeDeactivated = 4;

} // namespace

std::optional<ActivationObjects> activationObjects(const QVariantList& arguments)
{
    QStringList paths;
    for (const auto& argument : arguments) {
        if (const auto path = argument.value<QDBusObjectPath>().path(); !path.isEmpty()) {
            paths.append(path);
        }
    }
    if (paths.isEmpty()) {
        return {};
    }
    // A new profile's answer is the profile and the active connection, a stored one's the latter alone.
    return ActivationObjects{.profilePath = paths.size() > 1 ? paths.first() : QString(),
                             .activePath = paths.last()};
}

Activation::Activation(const NetworkManager& manager, QString devicePath, std::chrono::milliseconds timeLimit)
    : m_manager(manager)
    , m_devicePath(std::move(devicePath))
    , m_timeLimit(timeLimit)
    , m_agent(manager.bus())
    , m_serviceWatcher(NetworkManager::serviceName, manager.bus().connection(),
                       QDBusServiceWatcher::WatchForUnregistration)
    , m_busEnd(manager.bus())
{
    auto bus = m_manager.bus().connection();
    bus.connect(NetworkManager::serviceName, m_devicePath, NetworkManager::deviceInterface, u"StateChanged"_s,
                this, SLOT(deviceStateChanged(uint, uint, uint)));
    bus.connect(NetworkManager::serviceName, QString(), u"org.freedesktop.NetworkManager.Connection.Active"_s,
                u"StateChanged"_s, this, SLOT(activeStateChanged(uint, uint, QDBusMessage)));
    connect(&m_serviceWatcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { finish(ActivationOutcome::vanished); });
    connect(&m_busEnd, &BusEnd::reached, this, [this] { finish(ActivationOutcome::vanished); });
}

ActivationEnd Activation::activate(const QString& profilePath, const QString& accessPointPath,
                                   const std::atomic<bool>& stopped)
{
    m_end.profilePath = profilePath;
    m_agent.setProfile(profilePath);
    return follow(interactiveCall(NetworkManager::objectPath, managerInterface(), u"ActivateConnection"_s,
                                  {QVariant::fromValue(QDBusObjectPath(profilePath)),
                                   QVariant::fromValue(QDBusObjectPath(m_devicePath)),
                                   QVariant::fromValue(QDBusObjectPath(accessPointPath))}),
                  stopped);
}

ActivationEnd Activation::activateNew(const ConnectionSettings& settings, const QString& accessPointPath,
                                      const std::atomic<bool>& stopped)
{
    return follow(
        interactiveCall(NetworkManager::objectPath, managerInterface(), u"AddAndActivateConnection2"_s,
                        {QVariant::fromValue(settings), QVariant::fromValue(QDBusObjectPath(m_devicePath)),
                         QVariant::fromValue(QDBusObjectPath(accessPointPath)),
                         QVariantMap{{u"persist"_s, u"volatile"_s}}}),
        stopped);
}

ActivationEnd Activation::follow(const QDBusMessage& request, const std::atomic<bool>& stopped)
{
    // Nothing is begun that would have to be ended at once.
    if (!m_manager.bus().pause(0ms)) {
        return m_end;
    }
    QDBusPendingCallWatcher answer(
        m_manager.bus().connection().asyncCall(request, answerTimeoutMilliseconds));
    connect(&answer, &QDBusPendingCallWatcher::finished, this, [this, &answer] { take(answer); });
    QTimer check;
    connect(&check, &QTimer::timeout, this, [this, &stopped] {
        if (stopped) {
            finish(ActivationOutcome::stopped);
        } else if (m_deadline.hasExpired()) {
            finish(ActivationOutcome::outOfTime);
        }
    });
    check.start(checkInterval);
    // Also returns when the application quits.
    m_loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (m_end.outcome == ActivationOutcome::stopped) {
        // What NetworkManager has been asked for can be ended only by the answer's name for it.
        awaitAtEnd([this] { return m_isAnswered; }, lastAnswerLimit);
        m_end.outcome = ActivationOutcome::stopped;
    }
    const auto goesOn =
        m_end.outcome == ActivationOutcome::outOfTime || m_end.outcome == ActivationOutcome::stopped;
    if (goesOn && !m_end.activePath.isEmpty()) {
        m_manager.deactivate(m_end.activePath);
    }
    return m_end;
}

void Activation::take(const QDBusPendingCall& answer)
{
    m_isAnswered = true;
    if (answer.isError()) {
        m_end.refusal = remoteError(answer.error());
        finish(ActivationOutcome::refused);
        return;
    }
    const auto objects = activationObjects(answer.reply().arguments());
    if (!objects) {
        // As where Qt finds the answer to be of another type than it was asked for.
        m_end.refusal =
            remoteError(QDBusError(QDBusError::InvalidSignature, u"(%1)"_s.arg(answer.reply().signature())));
        finish(ActivationOutcome::refused);
        return;
    }
    m_end.activePath = objects->activePath;
    if (!objects->profilePath.isEmpty()) {
        m_end.profilePath = objects->profilePath;
        m_agent.setProfile(m_end.profilePath);
    }
    m_deadline.setRemainingTime(m_timeLimit);
    checkEnd();
}

void Activation::deviceStateChanged(uint state, uint /*oldState*/, uint reason)
{
    m_end.state = static_cast<DeviceState>(state);
    if (m_end.state == DeviceState::preparing) {
        // What came before was the end of an earlier connection.
        m_end.reason = 0;
    } else if (reason != 0 &&
               (m_end.state < DeviceState::preparing || m_end.state > DeviceState::activated)) {
        m_end.reason = reason;
    }
}

void Activation::activeStateChanged(uint state, uint /*reason*/, const QDBusMessage& signal)
{
    m_activeStates[signal.path()] = state;
    checkEnd();
}

void Activation::checkEnd()
{
    const auto state = m_activeStates.value(m_end.activePath);
    if (state == activeActivated) {
        finish(ActivationOutcome::activated);
    } else if (state == activeDeactivated) {
        finish(ActivationOutcome::failed);
    }
}

void Activation::finish(ActivationOutcome outcome)
{
    m_end.outcome = outcome;
    m_loop.quit();
}

} // namespace aerolith
