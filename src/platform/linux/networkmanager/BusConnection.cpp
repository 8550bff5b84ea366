#include "platform/linux/networkmanager/BusConnection.h"

#include "platform/linux/networkmanager/AwaitCall.h"

#include <QDBusPendingCall>

#include <thread>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QDBusConnection connectTo(const BusAddress& address)
{
    static std::atomic<quint64> count = 0;
    const auto name = u"aerolith-%1"_s.arg(++count);
    return address ? QDBusConnection::connectToBus(*address, name)
                   : QDBusConnection::connectToBus(QDBusConnection::SystemBus, name);
}

} // namespace

BusConnection::BusConnection(const BusAddress& address, std::chrono::milliseconds callLimit)
    : m_callLimit(callLimit), m_connection(connectTo(address))
{
}

BusConnection::BusConnection(const BusAddress& address, const std::atomic<bool>& stopped)
    : m_callLimit(usualCallLimit), m_stopped(&stopped), m_connection(connectTo(address))
{
}

BusConnection::~BusConnection()
{
    const auto name = m_connection.name();
    m_connection = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(name);
}

void BusConnection::await(const QDBusPendingCall& call) const
{
    if (m_stopped != nullptr) {
        awaitCall(call, *m_stopped);
        return;
    }
    auto same = call;
    same.waitForFinished();
}

bool BusConnection::pause(std::chrono::milliseconds duration) const
{
    if (m_stopped != nullptr) {
        return aerolith::pause(duration, *m_stopped);
    }
    std::this_thread::sleep_for(duration);
    return true;
}

} // namespace aerolith
