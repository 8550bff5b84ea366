#include "platform/linux/LinuxLocationManager.h"

#include "platform/linux/networkmanager/FakeNetworkManager.h"
#include "support/FakeWiFi.h"
#include "support/MainLoop.h"
#include "support/ManualMainQueue.h"
#include "support/PrivateBus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;
using Status = CLAuthorizationStatus;
using testing::ElementsAre;
using testing::IsEmpty;

class LinuxLocationManagerTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { startMainLoop(); }

    void start(const QString& permission)
    {
        m_manager.reset();
        m_fake.emplace(m_bus.address());
        m_fake->setScanPermission(permission);
        m_manager.emplace(m_queue, m_bus.address());
        m_manager->setDelegate(&m_delegate);
    }

    [[nodiscard]] bool becomes(Status status)
    {
        return handleEventsUntil([&] { return m_manager->authorizationStatus() == status; });
    }

    PrivateBus m_bus;
    ManualMainQueue m_queue;
    RecordingDelegate m_delegate;
    std::optional<FakeNetworkManager> m_fake;
    std::optional<LinuxLocationManager> m_manager;
};

TEST_F(LinuxLocationManagerTest, deliversOnceOnALaterTurnAndThenEveryChange)
{
    start(u"yes"_s);
    EXPECT_EQ(m_manager->authorizationStatus(), Status::authorizedAlways);
    EXPECT_THAT(m_delegate.told, IsEmpty());
    m_queue.drain();
    EXPECT_THAT(m_delegate.told, ElementsAre(Status::authorizedAlways));
    m_fake->setScanPermission(u"no"_s);
    EXPECT_TRUE(becomes(Status::denied));
    m_fake->setScanPermission(u"auth"_s);
    EXPECT_TRUE(becomes(Status::notDetermined));
    EXPECT_THAT(m_delegate.told,
                ElementsAre(Status::authorizedAlways, Status::denied, Status::notDetermined));
}

TEST_F(LinuxLocationManagerTest, deliversAnEarlyChangeAtFirstAndNothingAfterDetachingOrItsEnd)
{
    start(u"yes"_s);
    m_fake->setScanPermission(u"no"_s);
    EXPECT_TRUE(becomes(Status::denied));
    m_queue.drain();
    EXPECT_THAT(m_delegate.told, ElementsAre(Status::denied));

    start(u"yes"_s);
    m_manager->setDelegate(nullptr);
    m_queue.drain();
    m_fake->setScanPermission(u"no"_s);
    EXPECT_TRUE(becomes(Status::denied));
    m_manager->setDelegate(&m_delegate);
    m_manager.reset();
    m_queue.drain();
    EXPECT_THAT(m_delegate.told, ElementsAre(Status::denied)) << "nothing since";
}

} // namespace
} // namespace aerolith
