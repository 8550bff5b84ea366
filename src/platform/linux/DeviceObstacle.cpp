#include "platform/linux/DeviceObstacle.h"

#include <QCoreApplication>

namespace aerolith {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(JoinFailure)
};

} // namespace

Failure deviceObstacle(const NetworkManager& manager, const QString& interfaceName)
{
    const auto switches = manager.radioSwitches();
    if (!switches.ok()) {
        return switches.error();
    }
    if (!switches.value().on()) {
        return Error{Texts::tr("The Wi-Fi radio is off")};
    }
    const auto device = manager.device(interfaceName);
    if (!device.ok()) {
        return device.error();
    }
    if (!device.value()) {
        return Error{Texts::tr("The Wi-Fi interface %1 is gone").arg(interfaceName)};
    }
    if (device.value()->state < DeviceState::disconnected) {
        return Error{Texts::tr("The Wi-Fi interface %1 is not available").arg(interfaceName)};
    }
    return {};
}

} // namespace aerolith
