#include "platform/linux/networkmanager/BusConnection.h"

#include <atomic>

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

BusConnection::~BusConnection()
{
    const auto name = m_connection.name();
    m_connection = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(name);
}

} // namespace aerolith
