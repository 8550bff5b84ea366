#include "platform/linux/LinuxLocationManager.h"

namespace aerolith {

LinuxLocationManager::LinuxLocationManager(MainQueue& mainQueue, const BusAddress& bus)
    : m_mainQueue(mainQueue), m_permission(bus, [this] { permissionChanged(); })
{
}

void LinuxLocationManager::setDelegate(CLLocationManagerDelegate* delegate)
{
    m_delegate = delegate;
    if (delegate == nullptr || m_firstDeliveryPending) {
        return;
    }
    m_firstDeliveryPending = true;
    m_mainQueue.async(m_lifeline.guarded([this] {
        m_firstDeliveryPending = false;
        deliver();
    }));
}

CLAuthorizationStatus LinuxLocationManager::authorizationStatus() const
{
    switch (m_permission.state()) {
    case ScanPermission::State::granted:
        return CLAuthorizationStatus::authorizedAlways;
    case ScanPermission::State::undecided:
        return CLAuthorizationStatus::notDetermined;
    case ScanPermission::State::refused:
        break;
    }
    return CLAuthorizationStatus::denied;
}

void LinuxLocationManager::requestWhenInUseAuthorization()
{
    m_permission.ask();
}

void LinuxLocationManager::deliver()
{
    if (m_delegate != nullptr) {
        m_delegate->locationManagerDidChangeAuthorization(*this);
    }
}

void LinuxLocationManager::permissionChanged()
{
    if (!m_firstDeliveryPending) {
        deliver();
    }
}

} // namespace aerolith
