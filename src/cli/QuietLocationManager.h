#pragma once

#include "platform/CLLocationManager.h"

#include <functional>
#include <utility>

namespace aerolith {

/// A location manager for a scanner that somebody else paces: everything passes through but the change
/// callback, which would make the scanner start and repeat its scans by itself. Main thread.
class QuietLocationManager : public CLLocationManager, private CLLocationManagerDelegate
{
public:
    /// `onDecided` runs each time the authorization is delivered with the user's decision in it.
    QuietLocationManager(CLLocationManager& manager, std::function<void()> onDecided)
        : m_manager(manager), m_onDecided(std::move(onDecided))
    {
        m_manager.setDelegate(this);
    }

    ~QuietLocationManager() override { m_manager.setDelegate(nullptr); }

    void setDelegate(CLLocationManagerDelegate* /*delegate*/) override {}

    [[nodiscard]] CLAuthorizationStatus authorizationStatus() const override
    {
        return m_manager.authorizationStatus();
    }

    void requestWhenInUseAuthorization() override { m_manager.requestWhenInUseAuthorization(); }

private:
    void locationManagerDidChangeAuthorization(CLLocationManager& manager) override
    {
        if (manager.authorizationStatus() != CLAuthorizationStatus::notDetermined) {
            m_onDecided();
        }
    }

    CLLocationManager& m_manager;
    std::function<void()> m_onDecided;
};

} // namespace aerolith
