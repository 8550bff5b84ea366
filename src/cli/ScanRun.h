#pragma once

#include "cli/QuietLocationManager.h"
#include "model/SelectionStore.h"
#include "model/WiFiScanner.h"
#include "platform/Lifeline.h"
#include "platform/Surroundings.h"

#include <QElapsedTimer>

#include <functional>

namespace aerolith {

/// How a run of scan cycles ended.
enum class RunOutcome
{
    completed,
    /// The last cycle failed; the scanner's error says why.
    lastCycleFailed,
    /// A cycle found no interface, and the run ended with it.
    noInterface,
};

/// Runs a number of scan cycles through a scanner of its own, once the location authorization is decided: at
/// an interval from start to start, or one right after the other where a cycle takes longer. Main thread.
class ScanRun
{
public:
    /// `interval` absent: the stored scan interval. `onEnd` runs once, after the last cycle's list has been
    /// published.
    ScanRun(const Surroundings& surroundings, int cycles, std::optional<double> interval,
            std::function<void(RunOutcome)> onEnd);

    [[nodiscard]] WiFiScanner& scanner() { return m_scanner; }

private:
    void startCycle();
    void endCycle();

    Surroundings m_surroundings;
    QuietLocationManager m_locationManager;
    SelectionStore m_selection;
    WiFiScanner m_scanner;
    int m_cyclesLeft;
    Seconds m_interval;
    std::function<void(RunOutcome)> m_onEnd;
    bool m_started = false;
    QElapsedTimer m_sinceStart;
    Lifeline m_lifeline;
};

} // namespace aerolith
