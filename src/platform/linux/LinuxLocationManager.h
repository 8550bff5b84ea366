#pragma once

#include "platform/CLLocationManager.h"
#include "platform/Lifeline.h"
#include "platform/Queues.h"
#include "platform/linux/networkmanager/ScanPermission.h"

namespace aerolith {

/// The desktop's counterpart of the location authorization: whether NetworkManager's policy lets this user
/// scan. authorizedAlways where it does, denied where it does not, notDetermined where it asks for a password
/// first. Main thread, with an event loop.
class LinuxLocationManager : public CLLocationManager
{
public:
    /// Blocks for the first answer, at most one second. The queue outlives this object.
    explicit LinuxLocationManager(MainQueue& mainQueue, const BusAddress& bus = {});

    void setDelegate(CLLocationManagerDelegate* delegate) override;
    [[nodiscard]] CLAuthorizationStatus authorizationStatus() const override;
    void requestWhenInUseAuthorization() override;

private:
    void deliver();
    void permissionChanged();

    MainQueue& m_mainQueue;
    ScanPermission m_permission;
    CLLocationManagerDelegate* m_delegate = nullptr;
    /// While the delivery that follows setDelegate() is on its way; it covers the changes until then.
    bool m_firstDeliveryPending = false;
    Lifeline m_lifeline;
};

} // namespace aerolith
