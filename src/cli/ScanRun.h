#pragma once

#include "cli/QuietLocationManager.h"
#include "model/SelectionStore.h"
#include "model/WiFiScanner.h"
#include "platform/Lifeline.h"
#include "platform/Surroundings.h"

#include <QElapsedTimer>

#include <functional>
#include <optional>

namespace aerolith {

/// How a run of scan cycles ended.
enum class RunOutcome
{
    completed,
    /// The last cycle failed; the scanner's error says why.
    lastCycleFailed,
    /// The first cycle, which ends the run then, or the last one found no interface.
    noInterface,
    /// Somebody ended it.
    interrupted,
};

/// Runs a number of scan cycles through a scanner of its own, once the location authorization is decided: at
/// an interval from start to start, or one right after the other where a cycle takes longer. An interface
/// that goes away may come back. Main thread.
class ScanRun
{
public:
    /// `cycles` absent: until it is interrupted. `interval` absent: the stored scan interval. `onCycle` runs
    /// after each cycle that found an interface, once its list has been published; `onEnd` runs once, after
    /// the last of them.
    ScanRun(const Surroundings& surroundings, std::optional<int> cycles, std::optional<double> interval,
            std::function<void()> onCycle, std::function<void(RunOutcome)> onEnd);

    [[nodiscard]] WiFiScanner& scanner() { return m_scanner; }

    /// The cycles that have ended, those that failed included, but not those that found no interface.
    [[nodiscard]] int cyclesEnded() const { return m_cyclesEnded; }

    /// Ends the run now; a cycle that is under way does not count.
    void interrupt() { end(RunOutcome::interrupted); }

private:
    void startCycle();
    void endCycle();
    [[nodiscard]] RunOutcome lastOutcome() const;
    void end(RunOutcome outcome);

    Surroundings m_surroundings;
    QuietLocationManager m_locationManager;
    SelectionStore m_selection;
    WiFiScanner m_scanner;
    std::optional<int> m_cycles;
    Seconds m_interval;
    std::function<void()> m_onCycle;
    std::function<void(RunOutcome)> m_onEnd;
    int m_cyclesEnded = 0;
    /// Those that found no interface, while it was away.
    int m_cyclesMissed = 0;
    bool m_started = false;
    bool m_ended = false;
    QElapsedTimer m_sinceStart;
    Lifeline m_lifeline;
};

} // namespace aerolith
