#include "platform/linux/FakeKernel.h"
#include "platform/linux/LinuxWiFiClient.h"
#include "platform/linux/networkmanager/FakeNetworkManager.h"
#include "support/MainLoop.h"
#include "support/PrivateBus.h"
#include "support/RecordingLog.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QSemaphore>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

const auto joined = u"joined"_s;
const auto stored = u"/org/freedesktop/NetworkManager/Settings/3"_s;
const auto addAndActivate = u"AddAndActivateConnection2"_s;
const auto activate = u"ActivateConnection"_s;
const auto update = u"Update2"_s;
const auto security = u"802-11-wireless-security"_s;
const auto profileDenied = u"org.freedesktop.NetworkManager.Settings.PermissionDenied"_s;
const QList<DeviceStateReason> wrongPassword{{40, 0}, {50, 0}, {60, 8}, {120, 7}};

class InterfaceJoinTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { startMainLoop(); }

    InterfaceJoinTest()
    {
        auto kernel = std::make_unique<FakeKernel>();
        m_kernel = kernel.get();
        m_client.emplace(m_log, m_bus.address(), std::move(kernel));
        m_interface = m_client->interface();
        m_network.bssid = u"02:00:00:00:07:00"_s;
        m_network.ssidData = "home"_ba;
        m_network.securityCodes.insert(static_cast<int>(CWSecurity::wpa2Personal));
        m_network.securityCodes.insert(static_cast<int>(CWSecurity::personal));
    }

    QString join(const std::optional<QString>& password = u"correct horse"_s)
    {
        const auto failure = m_interface->associateToNetwork(m_network, password);
        return failure ? failure->description : joined;
    }

    /// A profile for the network, with an address and a choice of security of its own, that NetworkManager
    /// keeps.
    void store(const QString& password)
    {
        m_network.securityCodes.insert(static_cast<int>(CWSecurity::wpa3Personal));
        m_fake->setProperty(u"Device.AvailableConnections"_s,
                            QVariant::fromValue(QList{QDBusObjectPath(stored)}));
        const QList<QList<uint>> addresses{{1, 24, 2}};
        qDBusRegisterMetaType<QList<QList<uint>>>();
        m_fake->on(u"GetSettings"_s, reply(QVariant::fromValue(ConnectionSettings{
                                         {u"connection"_s, {{u"id"_s, u"Home"_s}}},
                                         {u"802-11-wireless"_s, {{u"ssid"_s, "home"_ba}}},
                                         {security, {{u"key-mgmt"_s, u"sae"_s}}},
                                         {u"ipv4"_s, {{u"addresses"_s, QVariant::fromValue(addresses)}}}})));
        m_fake->on(u"GetSecrets"_s,
                   reply(QVariant::fromValue(ConnectionSettings{{security, {{u"psk"_s, password}}}})));
    }

    [[nodiscard]] static ConnectionSettings settingsOf(const QDBusMessage& call)
    {
        return qdbus_cast<ConnectionSettings>(call.arguments().at(0));
    }

    [[nodiscard]] static QString updateOf(const QString& profile) { return update + u' ' + profile; }

    /// The calls that change something, in their order.
    [[nodiscard]] QStringList changes() const
    {
        QStringList names;
        for (const auto& name : {addAndActivate, update, activate}) {
            for (const auto& call : m_fake->calls(name)) {
                names.append(name == update ? updateOf(call.path()) : name);
            }
        }
        return names;
    }

    PrivateBus m_bus;
    RecordingLog m_log;
    FakeKernel* m_kernel = nullptr;
    std::optional<LinuxWiFiClient> m_client;
    std::optional<FakeNetworkManager> m_fake{std::in_place, m_bus.address()};
    std::shared_ptr<CWInterface> m_interface;
    CWNetwork m_network;
};

TEST_F(InterfaceJoinTest, keepsANewProfileOnceItHasJoined)
{
    m_kernel->hear(*m_network.bssid, "");
    m_kernel->hear(*m_network.bssid, "home");
    EXPECT_EQ(join(), joined);
    const auto calls = m_fake->calls(addAndActivate);
    ASSERT_EQ(calls.size(), 1);
    const auto settings = settingsOf(calls.first());
    EXPECT_EQ(settings[u"802-11-wireless"_s][u"ssid"_s].toByteArray(), "home"_ba);
    EXPECT_EQ(settings[u"802-11-wireless"_s][u"hidden"_s], true);
    EXPECT_EQ(settings[security][u"psk"_s], u"correct horse"_s);
    EXPECT_EQ(calls.first().arguments().at(2).value<QDBusObjectPath>().path(),
              FakeNetworkManager::accessPointPath);
    EXPECT_THAT(changes(), ElementsAre(addAndActivate, updateOf(FakeNetworkManager::newProfilePath)));
    EXPECT_EQ(m_fake->calls(update).first().arguments().at(1), 1U) << "to disk";

    m_network.ssidData = "another"_ba;
    EXPECT_EQ(join(), joined);
    EXPECT_EQ(m_fake->calls(addAndActivate).last().arguments().at(2).value<QDBusObjectPath>(),
              QDBusObjectPath(u"/"_s))
        << "NetworkManager has not heard that one";
}

TEST_F(InterfaceJoinTest, aFailureKeepsNothingAndSaysWhy)
{
    m_fake->setActivation(wrongPassword, 4);
    EXPECT_EQ(join(), u"The password is not correct"_s);
    m_fake->setActivation({{40, 0}, {120, 53}}, 4);
    EXPECT_EQ(join(), u"The network is out of reach"_s);
    m_kernel->hear(*m_network.bssid, "home", std::chrono::minutes(-1));
    EXPECT_EQ(join(), u"The network does not let this machine in"_s);
    m_network.securityCodes.insert(static_cast<int>(CWSecurity::wpa3Personal));
    EXPECT_EQ(join(), u"The network does not let this machine in: the password is probably not correct"_s)
        << "which WPA3 proves before anything else";
    EXPECT_EQ(join({}), u"The network needs a password"_s);
    EXPECT_EQ(join(u"short"_s), u"The password is not correct: it has 8 to 63 characters, or 64 hexadecimal "
                                "digits"_s);
    EXPECT_TRUE(m_fake->calls(update).isEmpty());
    EXPECT_EQ(m_fake->calls(addAndActivate).size(), 4);
}

TEST_F(InterfaceJoinTest, aStoredProfileJoinsByItself)
{
    store(u"correct horse"_s);
    EXPECT_EQ(join({}), joined);
    EXPECT_EQ(join(QString()), joined);
    EXPECT_EQ(join(u"correct horse"_s), joined);
    m_fake->setActivation(wrongPassword, 4);
    EXPECT_EQ(join({}), u"The password is not correct"_s);
    EXPECT_EQ(changes(), QStringList(4, activate));
    EXPECT_EQ(m_fake->calls(activate).first().arguments().at(0).value<QDBusObjectPath>().path(), stored);
}

TEST_F(InterfaceJoinTest, aStoredProfileIsForItsKindOfSecurityAlone)
{
    store(u"correct horse"_s);
    m_network.securityCodes = {};
    m_network.securityCodes.insert(static_cast<int>(CWSecurity::none));
    EXPECT_EQ(join({}), joined);
    ASSERT_THAT(changes(), ElementsAre(addAndActivate, updateOf(FakeNetworkManager::newProfilePath)))
        << "an open network of the same name";
    EXPECT_FALSE(settingsOf(m_fake->calls(addAndActivate).first()).contains(security));
}

TEST_F(InterfaceJoinTest, aStoredProfileTakesAPasswordOnlyOnceItHasJoined)
{
    store(u"old horse"_s);
    m_fake->setActivation(wrongPassword, 4);
    EXPECT_EQ(join(), u"The password is not correct"_s);
    EXPECT_THAT(changes(), ElementsAre(addAndActivate));

    m_fake->setActivation({{40, 0}, {100, 0}}, 2);
    EXPECT_EQ(join(), joined);
    EXPECT_THAT(changes(), ElementsAre(addAndActivate, addAndActivate, updateOf(stored), activate));
    const auto updated = settingsOf(m_fake->calls(update).first());
    EXPECT_EQ(updated[security][u"psk"_s], u"correct horse"_s);
    EXPECT_EQ(updated[security][u"key-mgmt"_s], u"sae"_s);
    EXPECT_EQ(updated[u"connection"_s][u"id"_s], u"Home"_s);
    EXPECT_EQ(qdbus_cast<QList<QList<uint>>>(updated[u"ipv4"_s][u"addresses"_s]),
              (QList<QList<uint>>{{1, 24, 2}}));

    m_fake->on(update, refuse(profileDenied));
    EXPECT_EQ(join(), joined);
    EXPECT_EQ(m_fake->calls(activate).size(), 1);
    EXPECT_THAT(m_log.take(), ElementsAre(testing::Truly([](const QString& line) {
                    return line.startsWith(u"The network's password could not be stored"_s);
                })));
}

TEST_F(InterfaceJoinTest, windowsLiveOnWhateverItWaitsFor)
{
    store(u"old horse"_s);
    QStringList frozen;
    std::atomic<bool> isToStop = false;
    m_fake->beforeEach([&](const QString& member) {
        if (!mainThreadLives()) {
            frozen.append(member);
        }
        if (isToStop && member == addAndActivate) {
            m_client->stopScanning();
        }
    });
    EXPECT_EQ(join(), joined);
    EXPECT_THAT(changes(), ElementsAre(addAndActivate, updateOf(stored), activate));

    m_fake->setActivation({{40, 0}}, 0);
    isToStop = true;
    EXPECT_EQ(join(), u"The attempt to join was stopped"_s);
    EXPECT_EQ(m_fake->calls(u"DeactivateConnection"_s).size(), 1);
    EXPECT_THAT(frozen, IsEmpty());
}

TEST_F(InterfaceJoinTest, quittingEndsItWhileNetworkManagerHangs)
{
    QSemaphore ended;
    bool inTime = false;
    m_fake->on(u"GetManagedObjects"_s, [&](const QDBusMessage& call) {
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        inTime = ended.tryAcquire(1, 5'000);
        return call.createReply();
    });
    QString outcome = joined;
    QTimer::singleShot(0, [&] {
        outcome = join();
        ended.release();
    });
    QCoreApplication::exec();
    m_fake->end();
    EXPECT_TRUE(inTime) << "it was the answer that ended the join";
    EXPECT_NE(outcome, joined);
}

TEST_F(InterfaceJoinTest, saysWhatStandsInTheWay)
{
    m_fake->on(addAndActivate, refuse(profileDenied));
    EXPECT_EQ(join(), u"The system does not permit this user to join networks"_s);
    m_fake->on(addAndActivate, [this](const QDBusMessage& call) {
        m_fake->setProperty(u"NetworkManager.WirelessEnabled"_s, false);
        m_fake->tellActiveState(4);
        return call.createReply({QVariant::fromValue(QDBusObjectPath(FakeNetworkManager::newProfilePath)),
                                 QVariant::fromValue(QDBusObjectPath(FakeNetworkManager::activePath))});
    });
    EXPECT_EQ(join(), u"The Wi-Fi radio is off"_s) << "switched off meanwhile";
    const auto attempts = m_fake->calls(addAndActivate).size();
    EXPECT_EQ(join(), u"The Wi-Fi radio is off"_s);
    m_fake->end();
    EXPECT_EQ(join(), u"NetworkManager is not running"_s);
    m_kernel->interfaceList.clear();
    EXPECT_EQ(join(), u"The Wi-Fi interface wlan0 is gone"_s);
    m_network.ssidData.clear();
    EXPECT_EQ(join(), u"The network's name is not known"_s);
    EXPECT_EQ(m_fake->calls(addAndActivate).size(), attempts);
}

} // namespace
} // namespace aerolith
