#include "platform/linux/LinuxMachine.h"

namespace aerolith {

LinuxMachine::LinuxMachine(Log& log, MainQueue& mainQueue, const BusAddress& bus)
    : m_wifiClient(log, bus), m_locationManager(mainQueue, bus)
{
}

} // namespace aerolith
