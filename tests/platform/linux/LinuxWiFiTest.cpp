#include "platform/linux/FakeKernel.h"
#include "platform/linux/LinuxWiFiClient.h"
#include "platform/linux/networkmanager/DBusTypes.h"
#include "platform/linux/networkmanager/FakeNetworkManager.h"
#include "platform/linux/nl80211/BootTime.h"
#include "support/Files.h"
#include "support/MainLoop.h"
#include "support/PrivateBus.h"
#include "support/RecordingLog.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/nl80211.h>

#include <thread>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nl80211::ScanStage;
using testing::ElementsAre;
using testing::IsEmpty;

const auto permissionDenied = u"org.freedesktop.NetworkManager.PermissionDenied"_s;
const auto notAllowed = u"org.freedesktop.NetworkManager.Device.NotAllowed"_s;

class LinuxWiFiTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { startMainLoop(); }

    LinuxWiFiTest()
    {
        auto kernel = std::make_unique<FakeKernel>();
        m_kernel = kernel.get();
        m_client.emplace(m_log, m_bus.address(), std::move(kernel), m_systemFiles.path());
        m_interface = m_client->interface();
    }

    void startNetworkManager()
    {
        m_fake.emplace(m_bus.address());
        m_fake->on(u"RequestScan"_s, [this](const QDBusMessage& call) {
            m_kernel->tell(ScanStage::started);
            m_kernel->hear(u"02:00:00:00:00:01"_s, "home");
            m_kernel->hear(u"02:00:00:00:00:02"_s, "cafe");
            m_kernel->tell(ScanStage::finished);
            return call.createReply();
        });
    }

    void setState(quint32 state)
    {
        m_fake->setProperty(u"Device.StateReason"_s, QVariant::fromValue(DeviceStateReason{state, 0}));
    }

    void join(const QString& kernelsAddress, const QString& networkManagersAddress)
    {
        m_kernel->hear(kernelsAddress, "home").status = NL80211_BSS_STATUS_ASSOCIATED;
        m_fake->setProperty(u"Wireless.ActiveAccessPoint"_s,
                            QVariant::fromValue(QDBusObjectPath(FakeNetworkManager::accessPointPath)));
        m_fake->setProperty(u"AccessPoint.HwAddress"_s, networkManagersAddress);
    }

    void writeRadioSwitch(const QByteArray& soft, const QByteArray& hard) const
    {
        const auto path = m_systemFiles.filePath(u"class/net/wlan0/phy80211/rfkill4"_s);
        putFile(path + u"/soft"_s, soft + '\n');
        putFile(path + u"/hard"_s, hard + '\n');
    }

    QStringList scan(const std::optional<QByteArray>& ssid = {})
    {
        const auto result = m_interface->scanForNetworksWithSSID(ssid);
        if (!result.ok()) {
            return {u"failed"_s, result.error().description};
        }
        QStringList addresses;
        for (const auto& network : result.value()) {
            addresses.append(*network.bssid);
        }
        return addresses;
    }

    QString failure() { return scan().value(1); }

    PrivateBus m_bus;
    QTemporaryDir m_systemFiles;
    RecordingLog m_log;
    FakeKernel* m_kernel = nullptr;
    std::optional<LinuxWiFiClient> m_client;
    std::optional<FakeNetworkManager> m_fake;
    std::shared_ptr<CWInterface> m_interface;
};

TEST_F(LinuxWiFiTest, theDefaultInterfaceIsTheFirstThatJoinsNetworks)
{
    EXPECT_EQ(m_interface->interfaceName(), u"wlan0"_s);
    auto accessPoint = m_kernel->interfaceList.first();
    accessPoint.name = u"ap0"_s;
    accessPoint.type = NL80211_IFTYPE_AP;
    auto withoutDevice = m_kernel->interfaceList.first();
    withoutDevice.index = 0;
    auto adHoc = m_kernel->interfaceList.first();
    adHoc.name = u"mesh0"_s;
    adHoc.type = NL80211_IFTYPE_ADHOC;
    m_kernel->interfaceList = {accessPoint, withoutDevice, adHoc, m_kernel->interfaceList.first()};
    EXPECT_EQ(m_client->interface()->interfaceName(), u"mesh0"_s);

    m_kernel->interfaceList = {accessPoint};
    EXPECT_EQ(m_client->interface(), nullptr);
    EXPECT_THAT(m_log.take(), IsEmpty());
    m_kernel->failure = Error{u"The kernel has no Wi-Fi"_s};
    EXPECT_EQ(m_client->interface(), nullptr);
    EXPECT_EQ(m_client->interface(), nullptr);
    EXPECT_THAT(m_log.take(), ElementsAre(u"The kernel has no Wi-Fi"_s));
}

TEST_F(LinuxWiFiTest, aScanAnswersWithWhatItHeardAlone)
{
    startNetworkManager();
    m_kernel->hear(u"02:00:00:00:00:09"_s, "gone", 5s);
    EXPECT_THAT(scan(), ElementsAre(u"02:00:00:00:00:01"_s, u"02:00:00:00:00:02"_s));
    EXPECT_THAT(scan("cafe"_ba), ElementsAre(u"02:00:00:00:00:02"_s));
    EXPECT_THAT(scan("hidden"_ba), IsEmpty());
    QList<QList<QByteArray>> names;
    for (const QDBusMessage& request : m_fake->calls(u"RequestScan"_s)) {
        names.append(qdbus_cast<QList<QByteArray>>(
            qdbus_cast<QVariantMap>(request.arguments().at(0)).value(u"ssids"_s)));
    }
    // NetworkManager may still keep a name that it was asked for, so that one request has to do for two
    // scans.
    EXPECT_THAT(names, ElementsAre(IsEmpty(), IsEmpty(), ElementsAre("hidden"_ba), IsEmpty()));
}

TEST_F(LinuxWiFiTest, aScanThatSomebodyElseHasRunningAnswersToo)
{
    startNetworkManager();
    setState(100);
    m_fake->on(u"RequestScan"_s, [this](const QDBusMessage& call) {
        m_kernel->tell(ScanStage::finished);
        return call.createErrorReply(notAllowed, u"Scanning not allowed while already scanning"_s);
    });
    m_kernel->hear(u"02:00:00:00:00:03"_s, "heard before the request", 2s);
    EXPECT_THAT(scan(), ElementsAre(u"02:00:00:00:00:03"_s));

    m_kernel->whenListenedTo = [this] {
        const auto now = std::chrono::duration_cast<std::chrono::milliseconds>(nl80211::bootTimeNow());
        m_fake->setProperty(u"Wireless.LastScan"_s, qlonglong{now.count()});
    };
    EXPECT_THAT(scan(), ElementsAre(u"02:00:00:00:00:03"_s)) << "NetworkManager knows of its end already";
}

TEST_F(LinuxWiFiTest, withoutEventsNetworkManagerTellsTheEnd)
{
    startNetworkManager();
    m_kernel->tellsEvents = false;
    m_fake->on(u"RequestScan"_s, [this](const QDBusMessage& call) {
        m_kernel->hear(u"02:00:00:00:00:01"_s, "home");
        m_fake->setProperty(u"Wireless.LastScan"_s, qlonglong{5'000});
        return call.createReply();
    });
    EXPECT_THAT(scan(), ElementsAre(u"02:00:00:00:00:01"_s));
}

TEST_F(LinuxWiFiTest, saysWhyThereIsNoScan)
{
    startNetworkManager();
    m_kernel->triggerRefusal = Error{u"A scan cannot be started: not permitted"_s};

    setState(20);
    EXPECT_EQ(failure(), u"The Wi-Fi interface wlan0 is not available"_s);
    setState(10);
    EXPECT_EQ(failure(), u"NetworkManager does not manage the Wi-Fi interface wlan0. "
                         "A scan cannot be started: not permitted"_s);
    setState(50);
    m_fake->on(u"RequestScan"_s, refuse(notAllowed));
    EXPECT_EQ(failure(), u"The Wi-Fi interface wlan0 is busy joining or leaving a network"_s);
    setState(30);
    m_fake->on(u"RequestScan"_s, refuse(permissionDenied));
    EXPECT_EQ(failure(), u"The system does not permit this user to scan for Wi-Fi networks"_s);
    m_fake->setProperty(u"NetworkManager.WirelessHardwareEnabled"_s, false);
    EXPECT_EQ(failure(), u"The Wi-Fi radio is off"_s);
    m_fake->setProperty(u"NetworkManager.WirelessHardwareEnabled"_s, u"text"_s);
    EXPECT_TRUE(failure().startsWith(u"NetworkManager gave an answer of a wrong type"_s));
    m_fake->setProperty(u"NetworkManager.WirelessHardwareEnabled"_s, true);
    m_fake->on(u"RequestScan"_s, [this](const QDBusMessage& call) {
        m_fake->setProperty(u"NetworkManager.WirelessEnabled"_s, false);
        m_kernel->tell(ScanStage::started);
        m_kernel->tell(ScanStage::aborted);
        return call.createReply();
    });
    EXPECT_EQ(failure(), u"The Wi-Fi radio is off"_s) << "switched off meanwhile";
    m_fake->setProperty(u"NetworkManager.WirelessEnabled"_s, true);
    m_fake->on(u"RequestScan"_s, vanish());
    EXPECT_EQ(failure(), u"NetworkManager does not answer"_s);
    EXPECT_EQ(failure(), u"NetworkManager is not running. A scan cannot be started: not permitted"_s);
    writeRadioSwitch("1", "0");
    EXPECT_EQ(failure(), u"The Wi-Fi radio is off"_s);
    m_kernel->interfaceList.clear();
    EXPECT_EQ(failure(), u"The Wi-Fi interface wlan0 is gone"_s);
}

TEST_F(LinuxWiFiTest, scansByItselfWhereNoNetworkManagerRuns)
{
    m_kernel->triggeredEvents = {ScanStage::started, ScanStage::finished};
    m_kernel->hear(u"02:00:00:00:00:03"_s, "early", 1s);
    // Heard from now on, however slowly the scan begins.
    m_kernel->hear(u"02:00:00:00:00:04"_s, "here", -60s);
    EXPECT_THAT(scan(), ElementsAre(u"02:00:00:00:00:04"_s));
    m_kernel->tellsEvents = false;
    EXPECT_EQ(failure(), u"no events"_s);
}

TEST_F(LinuxWiFiTest, stoppingOrQuittingEndsAScanThatNeverAnswers)
{
    startNetworkManager();
    m_fake->on(u"RequestScan"_s, [](const QDBusMessage& call) { return call.createReply(); });
    m_kernel->whenWaitedFor = [] { QTimer::singleShot(0, [] { QCoreApplication::quit(); }); };
    QString outcome;
    QTimer::singleShot(0, [&] { outcome = failure(); });
    QCoreApplication::exec();
    EXPECT_EQ(outcome, u"The Wi-Fi scan was stopped"_s);

    m_kernel->whenWaitedFor = [this] { QTimer::singleShot(0, [this] { m_client->stopScanning(); }); };
    EXPECT_EQ(failure(), u"The Wi-Fi scan was stopped"_s) << "timers run meanwhile";
}

TEST_F(LinuxWiFiTest, stoppingEndsAScanOnItsThreadWhileNetworkManagerHangs)
{
    startNetworkManager();
    QSemaphore asked;
    QSemaphore ended;
    bool inTime = false;
    m_fake->on(u"RequestScan"_s, [&](const QDBusMessage& call) {
        asked.release();
        inTime = ended.tryAcquire(1, 5'000);
        return call.createReply();
    });
    std::thread queue([this] { (void)scan(); });
    asked.acquire();
    m_client->stopScanning();
    queue.join();
    ended.release();
    m_fake.reset();
    EXPECT_TRUE(inTime) << "it was the answer that ended the scan";
}

TEST_F(LinuxWiFiTest, noticesAddressesThatNetworkManagersBackEndMakesUp)
{
    startNetworkManager();
    join(u"02:00:00:00:00:0a"_s, u"02:00:00:00:00:0A"_s);
    scan();
    join(u"02:00:00:00:00:0a"_s, u"02:00:00:00:00:01"_s);
    scan();
    EXPECT_THAT(m_log.take(), IsEmpty()) << "roaming is not making up";

    join(u"02:00:00:00:00:0a"_s, u"0e:ee:00:00:00:01"_s);
    scan();
    scan();
    EXPECT_EQ(m_log.take().size(), 1);
    EXPECT_EQ(m_interface->bssid(), u"02:00:00:00:00:0a"_s);
}

TEST_F(LinuxWiFiTest, readsInterfaceAndAssociationFromTheKernel)
{
    auto& wlan0 = m_kernel->interfaceList[0];
    wlan0.address = ieee80211::HardwareAddress{2, 0, 0, 0xab, 0, 1};
    wlan0.transmitPower = 1'500;
    EXPECT_EQ(m_interface->hardwareAddress(), u"02:00:00:ab:00:01"_s);
    EXPECT_EQ(m_interface->transmitPower(), 32);

    // While joining, the interface has a name already.
    wlan0.ssid = "hidden home"_ba;
    EXPECT_EQ(m_interface->ssid(), std::nullopt);
    m_kernel->hear(u"02:00:00:00:00:0a"_s, "").status = NL80211_BSS_STATUS_ASSOCIATED;
    EXPECT_EQ(m_interface->ssid(), u"hidden home"_s);
    EXPECT_EQ(m_interface->bssid(), u"02:00:00:00:00:0a"_s);
    wlan0.ssid.reset();
    m_kernel->entries.clear();
    m_kernel->hear(u"02:00:00:00:00:0a"_s, "home").status = NL80211_BSS_STATUS_ASSOCIATED;
    EXPECT_EQ(m_interface->ssid(), u"home"_s);

    m_kernel->interfaceList.clear();
    EXPECT_EQ(m_interface->ssid(), std::nullopt);
    EXPECT_EQ(m_interface->hardwareAddress(), std::nullopt);
    EXPECT_EQ(m_interface->transmitPower(), 0);
}

TEST_F(LinuxWiFiTest, theRadioIsOnUnlessSomethingSaysOtherwise)
{
    EXPECT_TRUE(m_interface->powerOn());
    writeRadioSwitch("0", "0");
    EXPECT_TRUE(m_interface->powerOn());
    writeRadioSwitch("0", "1");
    EXPECT_FALSE(m_interface->powerOn());
    EXPECT_EQ(m_interface->setPower(true)->description, u"NetworkManager is not running"_s);

    startNetworkManager();
    EXPECT_TRUE(m_interface->powerOn()) << "NetworkManager knows of every switch";
    EXPECT_EQ(m_interface->setPower(false), std::nullopt);
    EXPECT_FALSE(m_interface->powerOn());
    EXPECT_EQ(m_interface->setPower(true), std::nullopt);
    m_fake->setProperty(u"NetworkManager.WirelessHardwareEnabled"_s, false);
    EXPECT_FALSE(m_interface->powerOn());
    EXPECT_EQ(m_interface->setPower(true)->description,
              u"A switch or key of this machine keeps the Wi-Fi radio off"_s);
    m_fake->on(u"Set NetworkManager.WirelessEnabled"_s, refuse(permissionDenied));
    EXPECT_EQ(m_interface->setPower(false)->description,
              u"The system does not permit this user to switch the Wi-Fi radio"_s);
}

TEST_F(LinuxWiFiTest, windowsStayAliveWhileNetworkManagerHangs)
{
    startNetworkManager();
    QStringList frozen;
    m_fake->beforeEach([&](const QString& member) {
        if (!mainThreadLives()) {
            frozen.append(member);
        }
    });
    EXPECT_THAT(scan(), ElementsAre(u"02:00:00:00:00:01"_s, u"02:00:00:00:00:02"_s));
    EXPECT_EQ(m_interface->setPower(false), std::nullopt);
    m_fake->on(u"Get NetworkManager.WirelessEnabled"_s, refuse(u"org.freedesktop.DBus.Error.NoReply"_s));
    CWNetwork network;
    network.bssid = u"02:00:00:00:00:01"_s;
    network.ssidData = "home"_ba;
    const auto silence = u"NetworkManager does not answer"_s;
    EXPECT_EQ(failure(), silence);
    EXPECT_EQ(m_interface->associateToNetwork(network, {})->description, silence);
    EXPECT_EQ(m_interface->setPower(true)->description, silence);
    EXPECT_THAT(frozen, IsEmpty());

    QSemaphore looked;
    bool inTime = false;
    m_fake->beforeEach([&](const QString&) { inTime = looked.tryAcquire(1, 5'000); });
    EXPECT_TRUE(m_interface->powerOn());
    looked.release();
    m_fake.reset();
    EXPECT_TRUE(inTime) << "the program's start waits for it";
}

} // namespace
} // namespace aerolith
