#include "platform/simulated/SimulatedLocationManager.h"

#include "support/FakeWiFi.h"
#include "support/ManualMainQueue.h"

#include <gmock/gmock.h>

#include <optional>

namespace aerolith {
namespace {

using enum CLAuthorizationStatus;
using testing::ElementsAre;
using testing::IsEmpty;

class SimulatedLocationManagerTest : public testing::Test
{
protected:
    void start(CLAuthorizationStatus status, CLAuthorizationStatus answer = authorizedWhenInUse)
    {
        manager.emplace(std::make_shared<std::atomic<CLAuthorizationStatus>>(status), answer, main);
    }

    ManualMainQueue main;
    RecordingDelegate listener;
    RecordingDelegate other;
    std::optional<SimulatedLocationManager> manager;
};

TEST_F(SimulatedLocationManagerTest, tellsOnceAfterAttachmentAndAfterEveryChange)
{
    start(denied);
    manager->setDelegate(&listener);
    EXPECT_THAT(listener.told, IsEmpty());
    main.drain();
    EXPECT_THAT(listener.told, ElementsAre(denied));
    manager->setAuthorization(denied);
    manager->setAuthorization(authorizedAlways);
    EXPECT_EQ(manager->authorizationStatus(), authorizedAlways);
    EXPECT_THAT(listener.told, ElementsAre(denied));
    main.drain();
    EXPECT_THAT(listener.told, ElementsAre(denied, authorizedAlways));
}

TEST_F(SimulatedLocationManagerTest, answersARequestOnceAndOnALaterTurn)
{
    start(notDetermined, restricted);
    manager->setDelegate(&listener);
    manager->requestWhenInUseAuthorization();
    manager->requestWhenInUseAuthorization();
    EXPECT_EQ(manager->authorizationStatus(), notDetermined);
    main.drain();
    EXPECT_THAT(listener.told, ElementsAre(notDetermined, restricted));
    manager->setAuthorization(authorizedWhenInUse);
    manager->requestWhenInUseAuthorization();
    main.drain();
    EXPECT_THAT(listener.told, ElementsAre(notDetermined, restricted, authorizedWhenInUse));
}

TEST_F(SimulatedLocationManagerTest, forgetsAnEarlierDelegateAndItself)
{
    start(denied);
    manager->setDelegate(&listener);
    manager->setDelegate(&other);
    main.drain();
    EXPECT_THAT(other.told, ElementsAre(denied));
    manager->setAuthorization(restricted);
    manager->setDelegate(nullptr);
    main.drain();
    manager->setDelegate(&listener);
    manager->requestWhenInUseAuthorization();
    manager.reset();
    main.drain();
    EXPECT_THAT(listener.told, IsEmpty());
    EXPECT_THAT(other.told, ElementsAre(denied));
}

} // namespace
} // namespace aerolith
