#include "platform/simulated/SimulatedLocationManager.h"

#include <utility>

namespace aerolith {

SimulatedLocationManager::SimulatedLocationManager(SharedAuthorization authorization,
                                                   CLAuthorizationStatus answer, MainQueue& mainQueue)
    : m_authorization(std::move(authorization)), m_answer(answer), m_mainQueue(mainQueue)
{
}

void SimulatedLocationManager::setDelegate(CLLocationManagerDelegate* delegate)
{
    m_delegate = delegate;
    ++m_attachment;
    notifyLater();
}

CLAuthorizationStatus SimulatedLocationManager::authorizationStatus() const
{
    return m_authorization->load();
}

void SimulatedLocationManager::requestWhenInUseAuthorization()
{
    async([this] {
        if (authorizationStatus() == CLAuthorizationStatus::notDetermined) {
            setAuthorization(m_answer);
        }
    });
}

void SimulatedLocationManager::setAuthorization(CLAuthorizationStatus status)
{
    if (m_authorization->exchange(status) != status) {
        notifyLater();
    }
}

void SimulatedLocationManager::async(Task task)
{
    m_mainQueue.async(m_lifeline.guarded(std::move(task)));
}

void SimulatedLocationManager::notifyLater()
{
    async([this, attachment = m_attachment] {
        if (m_delegate != nullptr && attachment == m_attachment) {
            m_delegate->locationManagerDidChangeAuthorization(*this);
        }
    });
}

} // namespace aerolith
