#include "platform/linux/networkmanager/NetworkManager.h"

#include "platform/linux/networkmanager/DBusTypes.h"
#include "platform/linux/networkmanager/FakeNetworkManager.h"
#include "support/MainLoop.h"
#include "support/PrivateBus.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;

class NetworkManagerTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { startMainLoop(); }

    PrivateBus m_bus;
    FakeNetworkManager m_fake{m_bus.address()};
    NetworkManager m_manager{m_bus.address()};
};

const auto& wlan0 = FakeNetworkManager::devicePath;

TEST_F(NetworkManagerTest, tellsAbsentFromFailed)
{
    EXPECT_FALSE(m_manager.device(u"wlan9"_s).value());
    EXPECT_EQ(m_manager.activeAccessPointAddress(wlan0).value(), std::nullopt);
    EXPECT_EQ(m_manager.lastScan(wlan0).value(), std::nullopt);
    m_fake.setProperty(u"Wireless.LastScan"_s, qlonglong{5'000'000'000});
    EXPECT_EQ(m_manager.lastScan(wlan0).value(), std::chrono::milliseconds(5'000'000'000));

    m_fake.on(u"GetDeviceByIpIface"_s, refuse(u"org.freedesktop.NetworkManager.Failed"_s));
    EXPECT_FALSE(m_manager.device(u"wlan0"_s).ok());
}

TEST_F(NetworkManagerTest, findsTheAccessPointOfTheDeviceInOneCall)
{
    ManagedObjects objects;
    addDevice(objects, wlan0, {u"/first"_s, u"/second"_s, u"/third"_s});
    addDevice(objects, u"/wlan1"_s, {u"/others"_s});
    addAccessPoint(objects, u"/first"_s, u"02:00:00:00:00:0A"_s, "home");
    addAccessPoint(objects, u"/second"_s, u"02:00:00:00:00:0B"_s, "home");
    addAccessPoint(objects, u"/third"_s, u"02:00:00:00:00:0C"_s, "cafe");
    addAccessPoint(objects, u"/others"_s, u"02:00:00:00:00:0D"_s, "office");
    m_fake.on(u"GetManagedObjects"_s, reply(QVariant::fromValue(objects)));
    const auto found = [this](const QString& address, const QByteArray& ssid) {
        return m_manager.accessPoint(wlan0, address, ssid).value();
    };
    EXPECT_EQ(found(u"02:00:00:00:00:0a"_s, "home"), u"/first"_s);
    EXPECT_EQ(found(u"02:00:00:00:00:0b"_s, "home"), u"/second"_s);
    EXPECT_EQ(found(u"02:00:00:00:00:0b"_s, "cafe"), u"/third"_s) << "the name decides";
    EXPECT_EQ(found(u"02:00:00:00:00:0d"_s, "office"), std::nullopt) << "another device's";
}

TEST_F(NetworkManagerTest, passesEveryByteOfAName)
{
    const auto name = "caf\xc3\xa9\0\xff"_ba;
    EXPECT_FALSE(m_manager.requestScan(wlan0, name));
    const auto options = qdbus_cast<QVariantMap>(m_fake.calls(u"RequestScan"_s).first().arguments().at(0));
    EXPECT_EQ(options[u"ssids"_s].value<QDBusArgument>().currentSignature(), u"aay"_s);
    EXPECT_EQ(qdbus_cast<QList<QByteArray>>(options[u"ssids"_s]), QList<QByteArray>{name});
}

TEST_F(NetworkManagerTest, waitsUntilTheRadioHasSwitched)
{
    const auto property = u"NetworkManager.WirelessEnabled"_s;
    // As NetworkManager does: the change's answer comes first, the change some reads later.
    int reads = 0;
    m_fake.on(u"Set "_s + property, [](const QDBusMessage& call) { return call.createReply(); });
    m_fake.on(u"Get "_s + property, [&reads](const QDBusMessage& call) {
        return call.createReply(QVariant::fromValue(QDBusVariant(++reads < 3)));
    });
    bool repainted = false;
    QTimer::singleShot(0, [&repainted] { repainted = true; });
    const std::atomic<bool> stopped = false;
    EXPECT_FALSE(NetworkManager(m_bus.address(), stopped).setWirelessEnabled(false));
    EXPECT_TRUE(repainted) << "the thread's events are handled meanwhile";
    EXPECT_EQ(reads, 3);
}

TEST_F(NetworkManagerTest, aWrongTypeIsAnError)
{
    const auto wrong = u"NetworkManager gave an answer of a wrong type"_s;
    for (const auto& answer :
         {QVariant(u"text"_s), QVariant(1.5), QVariant::fromValue(QList<QByteArray>{"x"_ba})}) {
        m_fake.on(u"GetDeviceByIpIface"_s, reply(answer));
        EXPECT_TRUE(m_manager.device(u"wlan0"_s).error().description.startsWith(wrong));
        m_fake.setProperty(u"NetworkManager.WirelessEnabled"_s, answer);
        EXPECT_TRUE(m_manager.radioSwitches().error().description.startsWith(wrong));
    }
    for (const auto& name : {u"GetDeviceByIpIface"_s, u"Get NetworkManager.WirelessEnabled"_s}) {
        m_fake.on(name, [](const QDBusMessage& call) { return call.createReply(); });
    }
    EXPECT_FALSE(m_manager.device(u"wlan0"_s).ok());
    EXPECT_FALSE(m_manager.radioSwitches().ok());
}

TEST_F(NetworkManagerTest, anUnreachableBusIsNoNetworkManager)
{
    const NetworkManager manager(u"unix:path=/nowhere"_s);
    EXPECT_FALSE(manager.isRunning());
    EXPECT_EQ(manager.requestScan(wlan0, {})->failure, RemoteFailure::notRunning);
}

TEST_F(NetworkManagerTest, servesThreadsWithoutEventLoopsAtOnce)
{
    std::atomic<int> answered = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 10; ++round) {
                const NetworkManager manager(m_bus.address());
                answered += manager.device(u"wlan0"_s).ok() ? 1 : 0;
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(answered, 40);
}

} // namespace
} // namespace aerolith
