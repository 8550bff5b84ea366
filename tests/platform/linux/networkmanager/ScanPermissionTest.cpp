#include "platform/linux/networkmanager/ScanPermission.h"

#include "platform/linux/networkmanager/DBusTypes.h"
#include "platform/linux/networkmanager/FakeNetworkManager.h"
#include "support/MainLoop.h"
#include "support/PrivateBus.h"

#include <QDBusObjectPath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <latch>
#include <optional>
#include <tuple>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;
using State = ScanPermission::State;

class ScanPermissionTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { startMainLoop(); }

    void start()
    {
        m_permission.emplace(m_bus.address(), [this] { ++m_changes; });
    }

    void startFake(const QString& permission)
    {
        m_fake.emplace(m_bus.address());
        m_fake->setScanPermission(permission);
    }

    /// The one after the other, on a bus where neither is left.
    void startBoth(const QString& permission)
    {
        m_permission.reset();
        m_fake.reset();
        startFake(permission);
        start();
    }

    [[nodiscard]] bool becomes(State state)
    {
        return handleEventsUntil([&] { return m_permission->state() == state; });
    }

    // With that many reads, everything the service said before the last one has been taken in.
    [[nodiscard]] bool takesInEverything(qsizetype reads)
    {
        return handleEventsUntil([&] { return m_fake->calls(u"GetPermissions"_s).size() >= reads; });
    }

    PrivateBus m_bus;
    std::optional<FakeNetworkManager> m_fake;
    std::optional<ScanPermission> m_permission;
    int m_changes = 0;
};

TEST_F(ScanPermissionTest, readsThePermissionWhenMade)
{
    start();
    EXPECT_EQ(m_permission->state(), State::granted) << "nobody there to refuse";
    for (const auto& [permission, state] : {std::pair{u"yes"_s, State::granted},
                                            {u"auth"_s, State::undecided},
                                            {u"no"_s, State::refused},
                                            {u"unknown"_s, State::refused}}) {
        startBoth(permission);
        EXPECT_EQ(m_permission->state(), state) << qPrintable(permission);
    }
    m_permission.reset();
    m_fake->on(u"GetPermissions"_s, reply(u"yes"_s));
    start();
    EXPECT_EQ(m_permission->state(), State::refused) << "an answer of a wrong type";
    EXPECT_EQ(m_changes, 0);
}

TEST_F(ScanPermissionTest, followsThePermissionAndTheService)
{
    startBoth(u"yes"_s);
    m_fake->setScanPermission(u"no"_s);
    EXPECT_TRUE(becomes(State::refused));
    m_fake.reset();
    EXPECT_TRUE(becomes(State::granted));
    startFake(u"no"_s);
    EXPECT_TRUE(becomes(State::refused));
    m_fake->on(u"GetPermissions"_s, vanish());
    m_fake->emitCheckPermissions();
    EXPECT_TRUE(becomes(State::granted));
    EXPECT_EQ(m_changes, 4);
}

TEST_F(ScanPermissionTest, findsTheBusAgain)
{
    startBoth(u"no"_s);
    m_bus.end();
    EXPECT_TRUE(becomes(State::granted)) << "nobody there to refuse";
    m_bus.begin();
    startFake(u"no"_s);
    EXPECT_TRUE(becomes(State::refused));
    m_fake->setScanPermission(u"auth"_s);
    EXPECT_TRUE(becomes(State::undecided));
    m_permission->ask();
    EXPECT_TRUE(becomes(State::granted));
    EXPECT_EQ(m_changes, 4);

    m_permission.reset();
    m_bus.end();
    start();
    m_bus.begin();
    startFake(u"no"_s);
    EXPECT_TRUE(becomes(State::refused)) << "there was none at the start";
}

TEST_F(ScanPermissionTest, askingLetsTheSystemAskTheUser)
{
    startBoth(u"auth"_s);
    const QList devices{QDBusObjectPath(FakeNetworkManager::devicePath + u"1"_s),
                        QDBusObjectPath(FakeNetworkManager::devicePath)};
    m_fake->on(u"GetDevices"_s, reply(QVariant::fromValue(devices)));
    m_permission->ask();
    m_permission->ask();
    EXPECT_EQ(m_permission->state(), State::undecided);
    EXPECT_TRUE(becomes(State::granted));
    const auto requests = m_fake->calls(u"RequestScan"_s);
    ASSERT_EQ(requests.size(), 2) << "only one of the devices understands it";
    EXPECT_TRUE(requests[1].isInteractiveAuthorizationAllowed());

    // What was proven stays proven while the permission reads the same, and no longer.
    m_fake->emitCheckPermissions();
    ASSERT_TRUE(takesInEverything(2));
    m_fake->setScanPermission(u"no"_s);
    EXPECT_TRUE(becomes(State::refused));
    m_fake->setScanPermission(u"auth"_s);
    EXPECT_TRUE(becomes(State::undecided));
    EXPECT_EQ(m_changes, 3);
}

TEST_F(ScanPermissionTest, asksNothingBeforeTheFirstAnswer)
{
    for (const auto& [permission, state, requests] :
         {std::tuple{u"no"_s, State::refused, 0}, {u"auth"_s, State::granted, 1}}) {
        startFake(permission);
        std::latch answers(1);
        m_fake->on(u"GetPermissions"_s, [&](const QDBusMessage& call) {
            answers.wait();
            return call.createReply(QVariant::fromValue(
                PermissionMap{{u"org.freedesktop.NetworkManager.wifi.scan"_s, permission}}));
        });
        start();
        EXPECT_EQ(m_permission->state(), State::undecided) << "no answer in time";
        m_permission->ask();
        answers.count_down();
        EXPECT_TRUE(becomes(state));
        m_fake->emitCheckPermissions();
        ASSERT_TRUE(takesInEverything(3));
        EXPECT_EQ(m_fake->calls(u"RequestScan"_s).size(), requests) << qPrintable(permission);
        m_permission.reset();
        m_fake.reset();
    }
}

TEST_F(ScanPermissionTest, aRefusalIsKeptAndAnUnableDeviceIsNone)
{
    startBoth(u"auth"_s);
    m_fake->on(u"RequestScan"_s, refuse(u"org.freedesktop.NetworkManager.PermissionDenied"_s));
    m_permission->ask();
    EXPECT_TRUE(becomes(State::refused));
    m_permission->ask();
    handleWaitingEvents();
    EXPECT_EQ(m_fake->calls(u"RequestScan"_s).size(), 1);

    m_permission.reset();
    m_fake->on(u"RequestScan"_s, refuse(u"org.freedesktop.NetworkManager.Device.NotAllowed"_s));
    start();
    m_permission->ask();
    EXPECT_TRUE(becomes(State::granted));
}

TEST_F(ScanPermissionTest, goesAwayWhileTheUserIsAsked)
{
    startBoth(u"auth"_s);
    m_permission->ask();
    m_permission.reset();
    m_fake->emitCheckPermissions();
    handleWaitingEvents();
    EXPECT_EQ(m_changes, 0);
}

} // namespace
} // namespace aerolith
