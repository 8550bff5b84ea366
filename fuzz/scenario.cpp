#include "Require.h"
#include "platform/simulated/ScenarioReader.h"
#include "platform/simulated/SimulatedInterface.h"

#include <algorithm>

using namespace aerolith;

namespace {

void followToTheEnd(Scenario scenario)
{
    scenario.scanSeconds = Seconds(0);
    SimulatedInterface interface(
        scenario, std::make_shared<std::atomic<CLAuthorizationStatus>>(scenario.authorization));
    interface.setPluggedIn(true);
    interface.switchPower(true);
    for (const ScenarioCycle& cycle : scenario.cycles) {
        const Result<QList<CWNetwork>> heard = interface.scanForNetworksWithSSID({});
        require(heard.ok() == !cycle.error);
        require(!heard.ok() || heard.value().size() == cycle.networks.size());
        for (const CWNetwork& network : cycle.networks) {
            require(network.ssidData == network.ssid.value_or(QString()).toUtf8());
            require(interface.scanForNetworksWithSSID(network.ssidData).ok());
            static_cast<void>(interface.associateToNetwork(network, {}));
        }
    }
}

} // namespace

/// The input is a scenario file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray json(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const Result<Scenario> scenario = parseScenario(json);
    if (scenario.ok()) {
        require(!scenario.value().cycles.isEmpty());
        followToTheEnd(scenario.value());
        return 0;
    }
    // One line, and nothing in it that a terminal would obey.
    const QList<uint> complaint = scenario.error().description.toUcs4();
    require(!complaint.isEmpty());
    require(std::all_of(complaint.begin(), complaint.end(),
                        [](uint character) { return QChar::isPrint(character); }));
    return 0;
}
