#include "cli/ScanRun.h"

#include <algorithm>
#include <utility>

namespace aerolith {

namespace {

Surroundings withLocationManager(Surroundings surroundings, CLLocationManager& manager)
{
    return {.wifiClient = surroundings.wifiClient,
            .locationManager = manager,
            .userDefaults = surroundings.userDefaults,
            .mainQueue = surroundings.mainQueue,
            .makeSerialQueue = std::move(surroundings.makeSerialQueue),
            .clock = surroundings.clock,
            .log = surroundings.log,
            .locale = std::move(surroundings.locale)};
}

} // namespace

ScanRun::ScanRun(const Surroundings& surroundings, int cycles, std::optional<double> interval,
                 std::function<void(RunOutcome)> onEnd)
    : m_surroundings(surroundings)
    , m_locationManager(surroundings.locationManager,
                        [this] {
                            if (!std::exchange(m_started, true)) {
                                startCycle();
                            }
                        })
    , m_selection(surroundings.mainQueue)
    , m_scanner(m_selection, withLocationManager(surroundings, m_locationManager))
    , m_cyclesLeft(cycles)
    , m_interval(interval.value_or(m_scanner.scanInterval()))
    , m_onEnd(std::move(onEnd))
{
    // The list is published on the turn after a cycle's end.
    QObject::connect(&m_scanner, &WiFiScanner::scanCycleEnded, &m_scanner,
                     [this] { m_surroundings.mainQueue.async(m_lifeline.guarded([this] { endCycle(); })); });
}

void ScanRun::startCycle()
{
    m_sinceStart.start();
    m_scanner.scanNetworks();
}

void ScanRun::endCycle()
{
    --m_cyclesLeft;
    if (m_scanner.status() == ScannerStatus::scanning) {
        m_onEnd(RunOutcome::noInterface);
        return;
    }
    if (m_cyclesLeft == 0) {
        m_onEnd(m_scanner.status() == ScannerStatus::error ? RunOutcome::lastCycleFailed
                                                           : RunOutcome::completed);
        return;
    }
    const Seconds elapsed = std::chrono::milliseconds(m_sinceStart.elapsed());
    m_surroundings.mainQueue.asyncAfter(std::max(Seconds(0), m_interval - elapsed),
                                        m_lifeline.guarded([this] { startCycle(); }));
}

} // namespace aerolith
