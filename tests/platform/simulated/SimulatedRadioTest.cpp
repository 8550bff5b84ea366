#include "platform/simulated/SimulatedRadio.h"

#include "model/WiFiScanner.h"
#include "platform/simulated/ScenarioReader.h"
#include "support/ManualMainQueue.h"
#include "support/ManualSerialQueue.h"
#include "support/MemoryDefaults.h"
#include "support/Printing.h"
#include "support/RecordingLog.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace aerolith {
namespace {

TEST(SimulatedRadio, comesAndGoesWithItsInterface)
{
    ManualMainQueue main;
    std::optional<SimulatedRadio> radio;
    radio.emplace(parseScenario(R"({"cycles": [{"networks": []}]})").value(), main);
    const std::shared_ptr<CWInterface> held = radio->wifiClient().interface();
    ASSERT_TRUE(held);
    radio->setPluggedIn(false);
    EXPECT_FALSE(radio->wifiClient().interface());
    radio->setPluggedIn(true);
    EXPECT_TRUE(radio->wifiClient().interface());
    radio.reset();
    EXPECT_FALSE(held->scanForNetworksWithSSID({}).ok());

    radio.emplace(parseScenario(R"({"interface": null, "cycles": [{"networks": []}]})").value(), main);
    EXPECT_FALSE(radio->wifiClient().interface());
    radio->setPluggedIn(true);
    EXPECT_EQ(radio->wifiClient().interface()->interfaceName(), u"wlan0"_s);
}

/// The engine, from the question for access to a cycle in which the machine has moved to another access
/// point.
TEST(SimulatedRadio, drivesTheEngine)
{
    ManualMainQueue main;
    SimulatedRadio radio(parseScenario(R"({"authorization": "notDetermined", "cycles": [
        {"joined": {"ssid": "A", "bssid": "a1"}, "networks": [{"ssid": "A", "bssid": "a1"}]},
        {"joined": {"ssid": "B", "bssid": "b1"}, "networks": [{"ssid": "A", "bssid": "a1"}, {"ssid": "B", "bssid": "b1"}]}
        ]})")
                             .value(),
                         main);
    ManualSerialTasks scanTasks;
    MemoryDefaults defaults;
    RecordingLog log;
    SelectionStore selection(main);
    WiFiScanner scanner(selection, Surroundings{.wifiClient = radio.wifiClient(),
                                                .locationManager = radio.locationManager(),
                                                .userDefaults = defaults,
                                                .mainQueue = main,
                                                .makeSerialQueue = scanTasks.factory(),
                                                .clock = main,
                                                .log = log,
                                                .locale = {}});
    const auto cycle = [&](Seconds after) {
        main.advance(after);
        scanTasks.runOne();
        main.drain();
        QStringList listed;
        for (const WiFiNetwork& network : scanner.networks()) {
            listed.append(network.bssid + (network.isCurrentNetwork ? u"*"_s : QString()));
        }
        return listed.join(u' ');
    };
    EXPECT_EQ(cycle(Seconds(5)), u"a1*"_s);
    EXPECT_EQ(cycle(Seconds(10)), u"b1* a1"_s);
    EXPECT_EQ(log.take().filter(u"Current network"_s).join(u' '), u"Current network: A Current network: B"_s);
}

} // namespace
} // namespace aerolith
