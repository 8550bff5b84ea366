#include "platform/linux/networkmanager/Activation.h"

#include "platform/linux/networkmanager/FakeNetworkManager.h"
#include "support/MainLoop.h"
#include "support/Printing.h"
#include "support/PrivateBus.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using enum ActivationOutcome;

constexpr auto userCanceled = "org.freedesktop.NetworkManager.SecretAgent.UserCanceled"_L1;
constexpr auto storesNone = "org.freedesktop.NetworkManager.SecretAgent.Failed"_L1;
constexpr auto noSecrets = "org.freedesktop.NetworkManager.SecretAgent.NoSecrets"_L1;

class ActivationTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { startMainLoop(); }

    ActivationEnd activateNew(std::chrono::milliseconds limit = Activation::usualTimeLimit)
    {
        Activation activation(m_manager, FakeNetworkManager::devicePath, limit);
        return activation.activateNew({{u"connection"_s, {{u"id"_s, u"x"_s}}}},
                                      FakeNetworkManager::accessPointPath, m_stopped);
    }

    /// Runs on the main thread when the next activation has been asked for.
    void whenAsked(const std::function<void()>& reaction)
    {
        m_fake->beforeEach([reaction](const QString& member) {
            if (member == u"AddAndActivateConnection2"_s) {
                QMetaObject::invokeMethod(qApp, reaction, Qt::QueuedConnection);
            }
        });
    }

    /// How one ends during which the application quits.
    ActivationOutcome activateNewAndQuit()
    {
        auto outcome = failed;
        QTimer::singleShot(0ms, [&] { outcome = activateNew().outcome; });
        QCoreApplication::exec();
        return outcome;
    }

    /// How many times the active connection has been ended.
    [[nodiscard]] qsizetype ended() const { return m_fake->calls(u"DeactivateConnection"_s).size(); }

    PrivateBus m_bus;
    std::optional<FakeNetworkManager> m_fake{std::in_place, m_bus.address()};
    std::atomic<bool> m_stopped = false;
    NetworkManager m_manager{m_bus.address(), m_stopped};
};

TEST_F(ActivationTest, endsWithTheActiveConnection)
{
    m_fake->setActivation({{40, 0}, {50, 0}, {60, 8}, {120, 7}, {30, 0}}, 4);
    auto end = activateNew();
    EXPECT_EQ(end.outcome, failed);
    EXPECT_EQ(end.reason, 7U);
    EXPECT_EQ(end.profilePath, FakeNetworkManager::newProfilePath);

    m_fake->setActivation({{110, 60}, {30, 60}, {40, 0}, {70, 0}, {100, 0}}, 2);
    end = activateNew();
    EXPECT_EQ(end.outcome, activated);
    EXPECT_EQ(end.reason, 0U) << "how the connection before it ended";
    EXPECT_EQ(ended(), 0) << "nothing was left to end";

    const auto call = m_fake->calls(u"AddAndActivateConnection2"_s).last();
    EXPECT_EQ(call.arguments().at(1).value<QDBusObjectPath>().path(), FakeNetworkManager::devicePath);
    EXPECT_EQ(qdbus_cast<QVariantMap>(call.arguments().at(3))[u"persist"_s], u"volatile"_s);
    EXPECT_TRUE(call.isInteractiveAuthorizationAllowed());
}

TEST_F(ActivationTest, takesInAnEndThatComesBeforeTheAnswer)
{
    m_fake->on(u"ActivateConnection"_s, [this](const QDBusMessage& call) {
        m_fake->tellDeviceState({120, 7});
        m_fake->tellActiveState(4);
        return call.createReply(QVariant::fromValue(QDBusObjectPath(FakeNetworkManager::activePath)));
    });
    Activation activation(m_manager, FakeNetworkManager::devicePath);
    const auto end = activation.activate(u"/stored"_s, u"/"_s, m_stopped);
    EXPECT_EQ(end.outcome, failed);
    EXPECT_EQ(end.reason, 7U);
}

TEST_F(ActivationTest, whatHasNotSucceededIsEnded)
{
    m_fake->setActivation({{40, 0}, {70, 0}}, 0);
    const auto late = activateNew(200ms);
    EXPECT_EQ(late.outcome, outOfTime);
    EXPECT_EQ(late.state, DeviceState::gettingAddress);
    EXPECT_EQ(ended(), 1);

    whenAsked([this] { m_stopped = true; });
    EXPECT_EQ(activateNew().outcome, stopped);
    EXPECT_EQ(ended(), 2);
    m_stopped = false;

    whenAsked([] { QTimer::singleShot(200ms, [] { QCoreApplication::quit(); }); });
    EXPECT_EQ(activateNewAndQuit(), stopped);
    EXPECT_EQ(ended(), 3);

    whenAsked([] { QCoreApplication::quit(); });
    m_fake->on(u"AddAndActivateConnection2"_s, [](const QDBusMessage& call) {
        EXPECT_TRUE(mainThreadLives()) << "has taken in that it is to quit";
        return call.createReply({QVariant::fromValue(QDBusObjectPath(FakeNetworkManager::newProfilePath)),
                                 QVariant::fromValue(QDBusObjectPath(FakeNetworkManager::activePath))});
    });
    EXPECT_EQ(activateNewAndQuit(), stopped);
    EXPECT_EQ(ended(), 4) << "before it is answered, too";

    m_stopped = true;
    EXPECT_EQ(activateNew().outcome, stopped);
    EXPECT_EQ(m_fake->calls(u"AddAndActivateConnection2"_s).size(), 4) << "nor is another begun";
}

TEST_F(ActivationTest, tellsRefusedFromVanished)
{
    m_fake->on(u"AddAndActivateConnection2"_s, [](const QDBusMessage& call) { return call.createReply(); });
    const auto unnamed = activateNew();
    EXPECT_EQ(unnamed.outcome, refused);
    EXPECT_EQ(unnamed.refusal.failure, RemoteFailure::wrongAnswer);
    EXPECT_EQ(unnamed.refusal.description, u"NetworkManager gave an answer of a wrong type: ()"_s)
        << "the text that is translated";

    m_fake.emplace(m_bus.address());
    m_fake->setActivation({{40, 0}}, 0);
    // The main thread's timers run while it waits.
    QTimer::singleShot(200ms, [this] { m_fake->end(); });
    EXPECT_EQ(activateNew().outcome, vanished);

    m_fake.emplace(m_bus.address());
    m_fake->setActivation({{40, 0}}, 0);
    QTimer::singleShot(200ms, [this] { m_bus.end(); });
    EXPECT_EQ(activateNew(10s).outcome, vanished) << "with its bus";
}

TEST_F(ActivationTest, keepsOtherAgentsFromAskingForAnotherPassword)
{
    const auto answerTo = [this](const QString& profile, uint flags,
                                 const QString& member = u"GetSecrets"_s) {
        QString answer;
        Activation activation(m_manager, FakeNetworkManager::devicePath);
        m_fake->on(u"ActivateConnection"_s, [&](const QDBusMessage& call) {
            m_fake->askAgent(call, member, profile, flags, [&](const QString& error) {
                answer = error;
                m_fake->tellActiveState(4);
            });
            return call.createReply(QVariant::fromValue(QDBusObjectPath(FakeNetworkManager::activePath)));
        });
        (void)activation.activate(u"/ours"_s, u"/"_s, m_stopped);
        return answer;
    };
    EXPECT_EQ(answerTo(u"/ours"_s, 7), userCanceled);
    EXPECT_EQ(answerTo(u"/ours"_s, 5), noSecrets) << "the desktop may have the stored one";
    EXPECT_EQ(answerTo(u"/theirs"_s, 7), noSecrets);
    EXPECT_EQ(answerTo(u"/theirs"_s, 0, u"SaveSecrets"_s), storesNone) << "another agent stores it";
    EXPECT_EQ(m_fake->calls(u"Register"_s).size(), 4);
}

} // namespace
} // namespace aerolith
