#include "platform/linux/networkmanager/FakeNetworkManager.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QMutexLocker>
#include <QSemaphore>
#include <QUuid>

#include <memory>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

const auto managerInterface = u"org.freedesktop.NetworkManager"_s;

// "Get Wireless.LastScan" for a property's call, else the method's name.
QString nameOf(const QDBusMessage& call)
{
    if (call.interface() != u"org.freedesktop.DBus.Properties"_s) {
        return call.member();
    }
    const auto interface = call.arguments().value(0).toString();
    return u"%1 %2.%3"_s.arg(call.member(), interface.section(u'.', -1),
                             call.arguments().value(1).toString());
}

QDBusMessage accept(const QDBusMessage& call)
{
    return call.createReply();
}

FakeNetworkManager::Reaction permission(const QString& toScan)
{
    return reply(QVariant::fromValue(PermissionMap{{u"org.freedesktop.NetworkManager.wifi.scan"_s, toScan}}));
}

} // namespace

const QString FakeNetworkManager::devicePath = u"/org/freedesktop/NetworkManager/Devices/2"_s;
const QString FakeNetworkManager::accessPointPath = u"/org/freedesktop/NetworkManager/AccessPoint/7"_s;
const QString FakeNetworkManager::activePath = u"/org/freedesktop/NetworkManager/ActiveConnection/4"_s;
const QString FakeNetworkManager::newProfilePath = u"/org/freedesktop/NetworkManager/Settings/9"_s;

FakeNetworkManager::FakeNetworkManager(const QString& busAddress)
    : m_connectionName(QUuid::createUuid().toString())
    , m_properties{{u"NetworkManager.WirelessEnabled"_s, true},
                   {u"NetworkManager.WirelessHardwareEnabled"_s, true},
                   {u"Device.StateReason"_s, QVariant::fromValue(DeviceStateReason{30, 0})},
                   {u"Wireless.LastScan"_s, qlonglong{-1}},
                   {u"Wireless.ActiveAccessPoint"_s, QVariant::fromValue(QDBusObjectPath(u"/"_s))},
                   {u"Device.AvailableConnections"_s, QVariant::fromValue(QList<QDBusObjectPath>())},
                   {u"AccessPoint.HwAddress"_s, u"02:00:00:00:07:00"_s},
                   {u"AccessPoint.Ssid"_s, "home"_ba}}
    , m_reactions{{u"GetPermissions"_s, permission(u"yes"_s)},
                  {u"GetDevices"_s, reply(QVariant::fromValue(QList{QDBusObjectPath(devicePath)}))},
                  {u"Update2"_s, reply(QVariantMap())},
                  {u"Register"_s, accept},
                  {u"DeactivateConnection"_s, accept}}
{
    registerDBusTypes();
    moveToThread(&m_thread);
    m_thread.start();
    QMetaObject::invokeMethod(
        this,
        [this, busAddress] {
            auto connection = QDBusConnection::connectToBus(busAddress, m_connectionName);
            connection.registerVirtualObject(u"/org/freedesktop"_s, this, QDBusConnection::SubPath);
            connection.registerService(managerInterface);
            connection.registerService(u"org.freedesktop.PolicyKit1"_s);
        },
        Qt::BlockingQueuedConnection);
}

FakeNetworkManager::~FakeNetworkManager()
{
    end();
    m_thread.quit();
    m_thread.wait();
}

void FakeNetworkManager::end()
{
    QMetaObject::invokeMethod(
        this, [this] { leaveBus(); }, Qt::BlockingQueuedConnection);
}

void FakeNetworkManager::leaveBus()
{
    QDBusConnection::disconnectFromBus(m_connectionName);
}

void FakeNetworkManager::setScanPermission(const QString& toScan)
{
    on(u"GetPermissions"_s, permission(toScan));
    tell(u"/org/freedesktop/PolicyKit1/Authority"_s, u"org.freedesktop.PolicyKit1.Authority"_s, u"Changed"_s);
}

void FakeNetworkManager::emitCheckPermissions()
{
    tell(u"/org/freedesktop/NetworkManager"_s, managerInterface, u"CheckPermissions"_s);
}

void FakeNetworkManager::setActivation(const QList<DeviceStateReason>& states, quint32 activeState)
{
    const QMutexLocker lock(&m_mutex);
    m_activationStates = states;
    m_activeState = activeState;
}

void FakeNetworkManager::tell(const QString& path, const QString& interface, const QString& signal,
                              const QVariantList& arguments)
{
    auto message = QDBusMessage::createSignal(path, interface, signal);
    message.setArguments(arguments);
    QMetaObject::invokeMethod(this, [this, message] { QDBusConnection(m_connectionName).send(message); });
}

void FakeNetworkManager::tellDeviceState(DeviceStateReason state)
{
    tell(devicePath, u"org.freedesktop.NetworkManager.Device"_s, u"StateChanged"_s,
         {state.state, 0U, state.reason});
}

void FakeNetworkManager::tellActiveState(quint32 state)
{
    tell(activePath, u"org.freedesktop.NetworkManager.Connection.Active"_s, u"StateChanged"_s, {state, 0U});
}

void FakeNetworkManager::followActivation()
{
    const QMutexLocker lock(&m_mutex);
    for (const auto& state : m_activationStates) {
        tellDeviceState(state);
    }
    if (m_activeState != 0) {
        tellActiveState(m_activeState);
    }
}

void FakeNetworkManager::askAgent(const QDBusMessage& call, const QString& member, const QString& profilePath,
                                  uint flags, const std::function<void(const QString& error)>& answered)
{
    auto question =
        QDBusMessage::createMethodCall(call.service(), u"/org/freedesktop/NetworkManager/SecretAgent"_s,
                                       u"org.freedesktop.NetworkManager.SecretAgent"_s, member);
    question.setArguments({QVariant::fromValue(ConnectionSettings()),
                           QVariant::fromValue(QDBusObjectPath(profilePath)), u"802-11-wireless-security"_s,
                           QStringList(), flags});
    QMetaObject::invokeMethod(
        this,
        [this, question, answered] {
            answered(QDBusConnection(m_connectionName).call(question).errorName());
        },
        Qt::QueuedConnection);
}

void FakeNetworkManager::setProperty(const QString& name, const QVariant& value)
{
    const QMutexLocker lock(&m_mutex);
    m_properties[name] = value;
}

void FakeNetworkManager::on(const QString& member, const Reaction& reaction)
{
    const QMutexLocker lock(&m_mutex);
    m_reactions[member] = reaction;
}

void FakeNetworkManager::beforeEach(const std::function<void(const QString& member)>& told)
{
    const QMutexLocker lock(&m_mutex);
    m_beforeEach = told;
}

QList<QDBusMessage> FakeNetworkManager::calls(const QString& member) const
{
    const QMutexLocker lock(&m_mutex);
    QList<QDBusMessage> found;
    for (const auto& [name, call] : m_calls) {
        if (name == member) {
            found.append(call);
        }
    }
    return found;
}

bool FakeNetworkManager::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    const auto answered = answer(nameOf(message), message);
    if (answered.type() == QDBusMessage::InvalidMessage) {
        leaveBus();
    } else {
        connection.send(answered);
    }
    return true;
}

QDBusMessage FakeNetworkManager::answer(const QString& member, const QDBusMessage& call)
{
    Reaction reaction;
    std::function<void(const QString&)> beforeEach;
    {
        const QMutexLocker lock(&m_mutex);
        m_calls.append({member, call});
        reaction = m_reactions.value(member);
        beforeEach = m_beforeEach;
    }
    if (beforeEach) {
        beforeEach(member);
    }
    return reaction ? reaction(call) : usualAnswer(member, call);
}

QDBusMessage FakeNetworkManager::usualAnswer(const QString& member, const QDBusMessage& call)
{
    const QMutexLocker lock(&m_mutex);
    const auto property = member.section(u' ', 1);
    if (member.startsWith(u"Get "_s)) {
        return m_properties.contains(property)
                   ? call.createReply(QVariant::fromValue(QDBusVariant(m_properties[property])))
                   : call.createErrorReply(QDBusError::UnknownProperty, property);
    }
    if (member.startsWith(u"Set "_s)) {
        m_properties[property] = call.arguments().at(2).value<QDBusVariant>().variant();
        return call.createReply();
    }
    if (member == u"GetManagedObjects"_s) {
        ManagedObjects objects;
        addDevice(objects, devicePath, {accessPointPath});
        addAccessPoint(objects, accessPointPath, m_properties[u"AccessPoint.HwAddress"_s].toString(),
                       m_properties[u"AccessPoint.Ssid"_s].toByteArray());
        return call.createReply(QVariant::fromValue(objects));
    }
    if (member == u"GetDeviceByIpIface"_s) {
        return call.arguments().value(0) == u"wlan0"_s
                   ? call.createReply(QVariant::fromValue(QDBusObjectPath(devicePath)))
                   : call.createErrorReply(u"org.freedesktop.NetworkManager.UnknownDevice"_s, member);
    }
    if (member == u"AddAndActivateConnection2"_s || member == u"ActivateConnection"_s) {
        // After the answer.
        QMetaObject::invokeMethod(
            this, [this] { followActivation(); }, Qt::QueuedConnection);
        const auto active = QVariant::fromValue(QDBusObjectPath(activePath));
        return member == u"ActivateConnection"_s
                   ? call.createReply(active)
                   : call.createReply(
                         {QVariant::fromValue(QDBusObjectPath(newProfilePath)), active, QVariantMap()});
    }
    if (member == u"RequestScan"_s && call.path() == devicePath) {
        return call.createReply();
    }
    return call.createErrorReply(QDBusError::UnknownMethod, member);
}

void addDevice(ManagedObjects& objects, const QString& path, const QStringList& accessPoints)
{
    QList<QDBusObjectPath> paths;
    for (const auto& accessPoint : accessPoints) {
        paths.append(QDBusObjectPath(accessPoint));
    }
    objects[QDBusObjectPath(path)][managerInterface + u".Device.Wireless"_s] = {
        {u"AccessPoints"_s, QVariant::fromValue(paths)}};
}

void addAccessPoint(ManagedObjects& objects, const QString& path, const QString& address,
                    const QByteArray& ssid)
{
    objects[QDBusObjectPath(path)][managerInterface + u".AccessPoint"_s] = {{u"HwAddress"_s, address},
                                                                            {u"Ssid"_s, ssid}};
}

bool mainThreadLives()
{
    const auto handled = std::make_shared<QSemaphore>();
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [handled] { handled->release(); }, Qt::QueuedConnection);
    return handled->tryAcquire(1, 5'000);
}

FakeNetworkManager::Reaction vanish()
{
    return [](const QDBusMessage&) { return QDBusMessage(); };
}

FakeNetworkManager::Reaction refuse(const QString& errorName)
{
    return [errorName](const QDBusMessage& call) { return call.createErrorReply(errorName, u"refused"_s); };
}

FakeNetworkManager::Reaction reply(const QVariant& value)
{
    return [value](const QDBusMessage& call) { return call.createReply(value); };
}

} // namespace aerolith
