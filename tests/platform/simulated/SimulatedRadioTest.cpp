#include "platform/simulated/SimulatedRadio.h"

#include "platform/simulated/ScenarioReader.h"
#include "support/ManualMainQueue.h"
#include "support/Printing.h"

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

} // namespace
} // namespace aerolith
