#include "plug/PluggedPlatform.h"

#include "platform/linux/LinuxMachine.h"
#include "platform/linux/xdg/XdgWorkspace.h"
#include "platform/qt/Locale.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/SettingsFile.h"
#include "platform/qt/SystemClock.h"
#include "platform/qt/WorkQueue.h"
#include "platform/simulated/Neighbourhood.h"
#include "platform/simulated/ScenarioReader.h"
#include "platform/simulated/SimulatedRadio.h"

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// A machine's Wi-Fi, with what Qt provides around it.
template <typename Machine>
class Plugged : public PluggedPlatform
{
public:
    /// `make` is given the main queue, and returns the machine.
    template <typename Make>
    Plugged(Log& log, Make make)
        : m_log(log), m_settings(SettingsFile::userPath(), m_log), m_machine(make(m_mainQueue))
    {
    }

    [[nodiscard]] Surroundings surroundings() override
    {
        return {.wifiClient = m_machine.wifiClient(),
                .locationManager = m_machine.locationManager(),
                .userDefaults = m_settings,
                .mainQueue = m_mainQueue,
                .makeSerialQueue = [](const QString& label) { return std::make_unique<WorkQueue>(label); },
                .clock = m_clock,
                .log = m_log,
                .locale = environmentLocale()};
    }

    [[nodiscard]] DesktopServices desktopServices() override
    {
        return {.loginItem = m_machine.loginItem(),
                .workspace = m_workspace,
                .hostAddresses = m_machine.hostAddresses()};
    }

    void stopScanning() override { m_machine.stopScanning(); }

private:
    Log& m_log;
    SettingsFile m_settings;
    SystemClock m_clock;
    QtMainQueue m_mainQueue;
    /// The desktop is the user's own, also around a simulated machine.
    XdgWorkspace m_workspace;
    /// Last: it may use the others.
    Machine m_machine;
};

Result<Scenario> scenarioOf(const Simulation& simulation)
{
    return simulation.scenarioFile ? readScenario(*simulation.scenarioFile) : neighbourhood();
}

} // namespace

Result<std::unique_ptr<PluggedPlatform>> plugPlatform(const std::optional<Simulation>& simulate, Log& log)
{
    if (!simulate) {
        return {std::make_unique<Plugged<LinuxMachine>>(
            log, [&log](MainQueue& mainQueue) { return LinuxMachine(log, mainQueue); })};
    }
    const Result<Scenario> scenario = scenarioOf(*simulate);
    if (!scenario.ok()) {
        return scenario.error();
    }
    return {std::make_unique<Plugged<SimulatedRadio>>(
        log, [&](MainQueue& mainQueue) { return SimulatedRadio(scenario.value(), mainQueue); })};
}

} // namespace aerolith
