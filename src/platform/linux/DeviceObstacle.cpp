#include "platform/linux/DeviceObstacle.h"

#include "platform/JoinTexts.h"

namespace aerolith {

Failure deviceObstacle(const NetworkManager& manager, const QString& interfaceName)
{
    const auto switches = manager.radioSwitches();
    if (!switches.ok()) {
        return switches.error();
    }
    if (!switches.value().on()) {
        return Error{JoinTexts::radioOff()};
    }
    const auto device = manager.device(interfaceName);
    if (!device.ok()) {
        return device.error();
    }
    if (!device.value()) {
        return Error{JoinTexts::interfaceGone(interfaceName)};
    }
    if (device.value()->state < DeviceState::disconnected) {
        return Error{JoinTexts::tr("The Wi-Fi interface %1 is not available").arg(interfaceName)};
    }
    return {};
}

} // namespace aerolith
