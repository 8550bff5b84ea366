#include "platform/simulated/SimulatedInterface.h"

#include "platform/simulated/ScenarioReader.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <future>

using namespace Qt::StringLiterals;

namespace aerolith {
namespace {

constexpr auto authorized = CLAuthorizationStatus::authorizedWhenInUse;

class SimulatedInterfaceTest : public testing::Test
{
protected:
    void follow(const QByteArray& json)
    {
        const Result<Scenario> scenario = parseScenario(json);
        ASSERT_TRUE(scenario.ok()) << scenario.error().description.toStdString();
        interface = std::make_unique<SimulatedInterface>(scenario.value(), authorization);
    }

    /// What a scan found, in words: "name address, ..." or the error in brackets.
    [[nodiscard]] QString scan(const std::optional<QByteArray>& ssid = {}) const
    {
        const Result<QList<CWNetwork>> result = interface->scanForNetworksWithSSID(ssid);
        if (!result.ok()) {
            return u'[' + result.error().description + u']';
        }
        QStringList found;
        for (const CWNetwork& network : result.value()) {
            found.append(network.ssid.value_or(u"-"_s) + u' ' + network.bssid.value_or(u"-"_s) +
                         QString::fromUtf8(network.ssidData.isEmpty() ? "" : "*"));
        }
        return found.join(u", ");
    }

    /// What one cycle of the engine learns, in the engine's order: name, scan, address.
    [[nodiscard]] QString engineCycle() const
    {
        const QString name = interface->ssid().value_or(u"-"_s);
        const QString found = scan();
        return name + u" | "_s + found + u" | "_s + interface->bssid().value_or(u"-"_s);
    }

    [[nodiscard]] QString join(const QByteArray& ssid, const std::optional<QString>& password) const
    {
        CWNetwork network;
        network.ssid = QString::fromUtf8(ssid);
        network.ssidData = ssid;
        network.bssid = u"joined"_s;
        const Failure failure = interface->associateToNetwork(network, password);
        return failure ? failure->description : u"joined"_s;
    }

    SharedAuthorization authorization = std::make_shared<std::atomic<CLAuthorizationStatus>>(authorized);
    std::unique_ptr<SimulatedInterface> interface;
};

const QByteArray threeCycles = R"("cycles": [
    {"joined": {"ssid": "A", "bssid": "a"}, "networks": [{"ssid": "A", "bssid": "a"}, {"bssid": "h"}]},
    {"error": "Busy"},
    {"joined": {"ssid": "B", "bssid": "b"}, "networks": [{"ssid": "B", "bssid": "b"}, {"ssid": "A", "bssid": "c"}]}
  ]})";

TEST_F(SimulatedInterfaceTest, givesEachEngineCycleTheAssociationOfItsOwn)
{
    follow("{" + threeCycles);
    EXPECT_EQ(interface->bssid(), u"a"_s);
    EXPECT_EQ(engineCycle(), u"A | A a*, - h | a"_s);
    EXPECT_EQ(engineCycle(), u"- | [Busy] | -"_s);
    for (int last = 0; last < 2; ++last) {
        EXPECT_EQ(engineCycle(), u"B | B b*, A c* | b"_s);
    }
    follow(R"({"afterLast": "loop", )" + threeCycles);
    for (int scans = 0; scans < 3; ++scans) {
        static_cast<void>(scan());
    }
    EXPECT_EQ(engineCycle(), u"A | A a*, - h | a"_s);
}

TEST_F(SimulatedInterfaceTest, scansByNameInTheLastFullScansCycle)
{
    follow("{" + threeCycles);
    EXPECT_EQ(scan("A"), u"A a*"_s);
    EXPECT_EQ(scan(""), u""_s);
    EXPECT_EQ(scan(), u"A a*, - h"_s);
    EXPECT_EQ(scan("B"), u""_s);
    EXPECT_EQ(scan(), u"[Busy]"_s);
    EXPECT_EQ(scan("A"), u"[Busy]"_s);
    EXPECT_EQ(scan(), u"B b*, A c*"_s);
    EXPECT_EQ(scan("A"), u"A c*"_s);
}

TEST_F(SimulatedInterfaceTest, withholdsNamesAndAddressesWithoutAuthorization)
{
    follow("{" + threeCycles);
    using enum CLAuthorizationStatus;
    for (const auto status : {notDetermined, denied, static_cast<CLAuthorizationStatus>(7)}) {
        authorization->store(status);
        EXPECT_EQ(scan("A"), u"- -"_s);
        EXPECT_EQ(interface->ssid(), std::nullopt);
        EXPECT_EQ(interface->bssid(), std::nullopt);
    }
    EXPECT_EQ(engineCycle(), u"- | - -, - - | -"_s);
    authorization->store(authorizedAlways);
    EXPECT_EQ(scan("A"), u"A a*"_s);
    EXPECT_EQ(interface->bssid(), u"a"_s);
}

TEST_F(SimulatedInterfaceTest, usesUpNoCycleWhileTheRadioIsOffOrGone)
{
    follow(R"({"interface": {"powerOn": false}, )" + threeCycles);
    EXPECT_FALSE(interface->powerOn());
    EXPECT_EQ(engineCycle(), u"- | [The Wi-Fi radio is off] | -"_s);
    EXPECT_EQ(scan("A"), u"[The Wi-Fi radio is off]"_s);
    EXPECT_EQ(join("A", {}), u"The Wi-Fi radio is off"_s);
    EXPECT_FALSE(interface->setPower(true));
    EXPECT_TRUE(interface->powerOn());
    interface->setPluggedIn(false);
    EXPECT_EQ(engineCycle(), u"- | [The Wi-Fi interface is gone] | -"_s);
    EXPECT_EQ(interface->setPower(false)->description, u"The Wi-Fi interface is gone"_s);
    EXPECT_EQ(interface->supportedWLANChannels(), std::nullopt);
    interface->setPluggedIn(true);
    EXPECT_EQ(engineCycle(), u"A | A a*, - h | a"_s);

    follow(R"({"interface": {"powerRefused": "Not allowed"}, )" + threeCycles);
    EXPECT_EQ(interface->setPower(false)->description, u"Not allowed"_s);
    EXPECT_TRUE(interface->powerOn());
    interface->switchPower(false);
    EXPECT_FALSE(interface->powerOn()) << "the machine's own switch";
}

TEST_F(SimulatedInterfaceTest, joinsWithTheListedPasswordAndStaysJoined)
{
    follow(R"({"passwords": {"B": "secret", "": "x"}, )" + threeCycles);
    const QString wrong = u"The password is not correct"_s;
    for (const auto& guess : {std::optional(u"Secret"_s), std::optional(u""_s), std::optional<QString>()}) {
        EXPECT_EQ(join("B", guess), wrong);
    }
    EXPECT_EQ(interface->ssid(), u"A"_s);
    EXPECT_EQ(join("B", u"secret"_s), u"joined"_s);
    EXPECT_EQ(interface->ssid(), u"B"_s);
    EXPECT_EQ(engineCycle(), u"B | A a*, - h | joined"_s);
    EXPECT_EQ(engineCycle(), u"B | [Busy] | joined"_s);
    EXPECT_EQ(join("C", {}), u"joined"_s);
    EXPECT_EQ(join("D", u"any"_s), u"joined"_s);
    EXPECT_EQ(engineCycle(), u"D | B b*, A c* | joined"_s);
}

/// A scan that would block for a day ends at once, on the thread that waits for it.
TEST_F(SimulatedInterfaceTest, endsAScanThatIsUnderWay)
{
    const auto scanThatIsEndedBy = [this](auto end) {
        follow(R"({"scanSeconds": 86400, )" + threeCycles);
        std::future<QString> found = std::async(std::launch::async, [this] { return scan(); });
        end();
        return found.get();
    };
    EXPECT_EQ(scanThatIsEndedBy([this] { interface->stopScanning(); }), u"[The scan was stopped]"_s);
    EXPECT_EQ(scan(), u"[The scan was stopped]"_s);
    EXPECT_EQ(scanThatIsEndedBy([this] { interface->switchPower(false); }), u"[The Wi-Fi radio is off]"_s);
    EXPECT_EQ(scanThatIsEndedBy([this] { interface->setPluggedIn(false); }),
              u"[The Wi-Fi interface is gone]"_s);
}

} // namespace
} // namespace aerolith
