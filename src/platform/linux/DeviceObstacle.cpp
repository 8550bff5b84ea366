#include "platform/linux/DeviceObstacle.h"

namespace aerolith {

using namespace Qt::StringLiterals;

Failure deviceObstacle(const NetworkManager& manager, const QString& interfaceName)
{
    const auto switches = manager.radioSwitches();
    if (!switches.ok()) {
        return switches.error();
    }
    if (!switches.value().on()) {
        return Error{u"The Wi-Fi radio is off"_s};
    }
    const auto device = manager.device(interfaceName);
    if (!device.ok()) {
        return device.error();
    }
    if (!device.value()) {
        return Error{u"The Wi-Fi interface %1 is gone"_s.arg(interfaceName)};
    }
    if (device.value()->state < DeviceState::disconnected) {
        return Error{u"The Wi-Fi interface %1 is not available"_s.arg(interfaceName)};
    }
    return {};
}

} // namespace aerolith
