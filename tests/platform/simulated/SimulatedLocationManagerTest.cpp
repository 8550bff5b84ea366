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
using testing::SizeIs;

TEST(SimulatedLocationManager, answersOnceOnALaterTurnAndTellsTheDelegateThatIsLeft)
{
    ManualMainQueue main;
    RecordingDelegate earlier;
    RecordingDelegate listener;
    std::optional<SimulatedLocationManager> manager(
        std::in_place, std::make_shared<std::atomic<CLAuthorizationStatus>>(notDetermined), restricted, main);
    manager->setDelegate(&earlier);
    manager->setDelegate(&listener);
    manager->requestWhenInUseAuthorization();
    manager->requestWhenInUseAuthorization();
    EXPECT_EQ(manager->authorizationStatus(), notDetermined);
    main.drain();
    EXPECT_THAT(listener.told, ElementsAre(notDetermined, restricted));
    manager->setAuthorization(restricted);
    manager->setAuthorization(authorizedAlways);
    manager->requestWhenInUseAuthorization();
    main.drain();
    EXPECT_THAT(listener.told, ElementsAre(notDetermined, restricted, authorizedAlways));

    manager->setAuthorization(denied);
    manager.reset();
    main.drain();
    EXPECT_THAT(listener.told, SizeIs(3)) << "gone with what it had to tell";
    EXPECT_THAT(earlier.told, IsEmpty());
}

} // namespace
} // namespace aerolith
