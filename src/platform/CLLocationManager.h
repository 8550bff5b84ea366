#pragma once

namespace aerolith {

/// Whether the user lets the program learn what networks are around: names and addresses are withheld without
/// it.
enum class CLAuthorizationStatus
{
    notDetermined = 0,
    restricted = 1,
    denied = 2,
    authorizedAlways = 3,
    authorizedWhenInUse = 4,
};

class CLLocationManager;

class CLLocationManagerDelegate
{
public:
    virtual ~CLLocationManagerDelegate() = default;

    /// Main thread: once after the delegate is attached, on a later turn of the main queue, and again after
    /// every change of the authorization.
    virtual void locationManagerDidChangeAuthorization(CLLocationManager& manager) = 0;
};

/// Main thread only.
class CLLocationManager
{
public:
    CLLocationManager() = default;
    CLLocationManager(const CLLocationManager&) = delete;
    CLLocationManager& operator=(const CLLocationManager&) = delete;
    virtual ~CLLocationManager() = default;

    /// Not owned; null detaches. The delegate outlives its attachment.
    virtual void setDelegate(CLLocationManagerDelegate* delegate) = 0;

    /// As last known; does not block. A value outside the enumeration is possible and means "unknown".
    [[nodiscard]] virtual CLAuthorizationStatus authorizationStatus() const = 0;

    /// Asks the user and returns at once; the answer arrives through the delegate.
    virtual void requestWhenInUseAuthorization() = 0;
};

} // namespace aerolith
