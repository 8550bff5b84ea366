#include "platform/linux/NetworkManagerScan.h"

#include "platform/JoinTexts.h"
#include "platform/linux/DeviceObstacle.h"

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

NetworkManagerScan::NetworkManagerScan(const NetworkManager& manager, AskedNames& askedNames,
                                       QString interfaceName, QString devicePath)
    : m_manager(manager)
    , m_askedNames(askedNames)
    , m_interfaceName(std::move(interfaceName))
    , m_devicePath(std::move(devicePath))
{
}

Failure NetworkManagerScan::obstacle()
{
    return deviceObstacle(m_manager, m_interfaceName);
}

Failure NetworkManagerScan::request(const std::optional<QByteArray>& ssid)
{
    const auto name = ssid && m_askedNames.take(*ssid) ? ssid : std::nullopt;
    const auto error = m_manager.requestScan(m_devicePath, name);
    if (!error) {
        return {};
    }
    switch (error->failure) {
    case RemoteFailure::permissionDenied:
        return Error{u"The system does not permit this user to scan for Wi-Fi networks"_s};
    case RemoteFailure::unknownObject:
        return Error{JoinTexts::interfaceGone(m_interfaceName)};
    case RemoteFailure::notAllowed:
        return whyNotAllowed();
    default:
        return error->error();
    }
}

std::optional<nl80211::BootTime> NetworkManagerScan::lastScan()
{
    const auto lastScan = m_manager.lastScan(m_devicePath);
    return lastScan.ok() ? lastScan.value() : std::nullopt;
}

// NetworkManager gives one name to several reasons; only the device's state tells them apart.
Failure NetworkManagerScan::whyNotAllowed()
{
    if (auto obstacle = NetworkManagerScan::obstacle()) {
        return obstacle;
    }
    const auto device = m_manager.device(m_interfaceName);
    const auto isSettled = [](DeviceState state) {
        return state == DeviceState::disconnected || state == DeviceState::activated;
    };
    if (device.ok() && device.value() && !isSettled(device.value()->state)) {
        return Error{u"The Wi-Fi interface %1 is busy joining or leaving a network"_s.arg(m_interfaceName)};
    }
    // A scan is under way, or has only just ended.
    return {};
}

} // namespace aerolith
