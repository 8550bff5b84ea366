#pragma once

#include "platform/CLLocationManager.h"
#include "platform/Lifeline.h"
#include "platform/Queues.h"
#include "platform/simulated/SimulatedInterface.h"

namespace aerolith {

/// The authorization of a scenario, with a user who answers on a later turn of the main queue. Main thread
/// only; it may go away before the tasks that it has posted.
class SimulatedLocationManager final : public CLLocationManager
{
public:
    SimulatedLocationManager(SharedAuthorization authorization, CLAuthorizationStatus answer,
                             MainQueue& mainQueue);

    void setDelegate(CLLocationManagerDelegate* delegate) override;
    [[nodiscard]] CLAuthorizationStatus authorizationStatus() const override;

    /// Does nothing once the user has decided.
    void requestWhenInUseAuthorization() override;

    /// The user changes the authorization outside the program; the delegate hears of it on a later turn.
    void setAuthorization(CLAuthorizationStatus status);

private:
    void async(Task task);
    void notifyLater();

    const SharedAuthorization m_authorization;
    const CLAuthorizationStatus m_answer;
    MainQueue& m_mainQueue;
    CLLocationManagerDelegate* m_delegate = nullptr;
    /// Which attachment of a delegate this is: what was posted for an earlier one is void.
    int m_attachment = 0;
    Lifeline m_lifeline;
};

} // namespace aerolith
