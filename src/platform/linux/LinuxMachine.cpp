#include "platform/linux/LinuxMachine.h"

#include <QCoreApplication>

namespace aerolith {

LinuxMachine::LinuxMachine(Log& log, MainQueue& mainQueue, const BusAddress& bus)
    : m_wifiClient(log, bus)
    , m_locationManager(mainQueue, bus)
    , m_loginItem(XdgLoginItem::userPath(), QCoreApplication::applicationFilePath())
    , m_hostAddresses(m_wifiClient)
{
}

} // namespace aerolith
