#include "cli/ScanRun.h"

#include <algorithm>
#include <utility>

namespace aerolith {

ScanRun::ScanRun(const Surroundings& surroundings, std::optional<int> cycles, std::optional<double> interval,
                 std::function<void()> onCycle, std::function<void(RunOutcome)> onEnd)
    : m_surroundings(surroundings)
    , m_locationManager(surroundings.locationManager,
                        [this] {
                            if (!std::exchange(m_started, true)) {
                                startCycle();
                            }
                        })
    , m_selection(surroundings.mainQueue)
    , m_scanner(m_selection, surroundings.with(surroundings.wifiClient, m_locationManager))
    , m_cycles(cycles)
    , m_interval(interval.value_or(m_scanner.scanInterval()))
    , m_onCycle(std::move(onCycle))
    , m_onEnd(std::move(onEnd))
{
    // The list is published on the turn after a cycle's end.
    QObject::connect(&m_scanner, &WiFiScanner::scanCycleEnded, &m_scanner,
                     [this] { m_surroundings.mainQueue.async(m_lifeline.guarded([this] { endCycle(); })); });
}

void ScanRun::startCycle()
{
    if (m_ended) {
        return;
    }
    m_sinceStart.start();
    m_scanner.scanNetworks();
}

void ScanRun::endCycle()
{
    if (m_ended) {
        return;
    }
    if (lastOutcome() != RunOutcome::noInterface) {
        ++m_cyclesEnded;
        m_onCycle();
    } else if (m_cyclesEnded > 0) {
        ++m_cyclesMissed;
    } else {
        end(RunOutcome::noInterface);
    }
    if (m_cyclesEnded + m_cyclesMissed == m_cycles) {
        end(lastOutcome());
    }
    if (m_ended) {
        return;
    }
    const Seconds elapsed = std::chrono::milliseconds(m_sinceStart.elapsed());
    m_surroundings.mainQueue.asyncAfter(std::max(Seconds(0), m_interval - elapsed),
                                        m_lifeline.guarded([this] { startCycle(); }));
}

/// A cycle that found no interface leaves the status as it was when it began.
RunOutcome ScanRun::lastOutcome() const
{
    switch (m_scanner.status()) {
    case ScannerStatus::scanning:
        return RunOutcome::noInterface;
    case ScannerStatus::error:
        return RunOutcome::lastCycleFailed;
    case ScannerStatus::idle:
        break;
    }
    return RunOutcome::completed;
}

void ScanRun::end(RunOutcome outcome)
{
    if (!std::exchange(m_ended, true)) {
        m_onEnd(outcome);
    }
}

} // namespace aerolith
