#include "platform/linux/Management.h"

#include "platform/JoinTexts.h"

namespace aerolith {

Result<Management> managementOf(const NetworkManager& manager, const QString& interfaceName)
{
    if (!manager.isRunning()) {
        return Management{.device = {}, .whyNot = notRunning().description};
    }
    const auto device = manager.device(interfaceName);
    if (!device.ok()) {
        return device.error();
    }
    if (!device.value() || device.value()->state == DeviceState::unmanaged) {
        return Management{
            .device = {},
            .whyNot =
                JoinTexts::tr("NetworkManager does not manage the Wi-Fi interface %1").arg(interfaceName)};
    }
    return Management{.device = device.value()};
}

} // namespace aerolith
