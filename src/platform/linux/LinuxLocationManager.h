#pragma once

#include "platform/CLLocationManager.h"
#include "platform/linux/networkmanager/ScanPermission.h"

#include <QObject>

namespace aerolith {

/// The desktop's counterpart of the location authorization: whether NetworkManager's policy lets this user
/// scan. authorizedAlways where it does, denied where it does not, notDetermined where it asks for a password
/// first. Main thread, with an event loop.
class LinuxLocationManager : public CLLocationManager
{
public:
    /// Blocks for the first answer, at most one second.
    explicit LinuxLocationManager(const BusAddress& bus = {});

    void setDelegate(CLLocationManagerDelegate* delegate) override;
    [[nodiscard]] CLAuthorizationStatus authorizationStatus() const override;
    void requestWhenInUseAuthorization() override;

private:
    void deliver();
    void permissionChanged();

    ScanPermission m_permission;
    CLLocationManagerDelegate* m_delegate = nullptr;
    /// While the delivery that follows setDelegate() is on its way; it covers the changes until then.
    bool m_firstDeliveryPending = false;
    QObject m_context;
};

} // namespace aerolith
