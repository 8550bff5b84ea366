#pragma once

#include "cli/Arguments.h"
#include "cli/ExitStatus.h"
#include "cli/ExportTarget.h"
#include "cli/ProgressLine.h"
#include "cli/RunProgress.h"
#include "cli/ScanRun.h"
#include "cli/WatchLines.h"
#include "platform/Surroundings.h"
#include "platform/simulated/ScenarioRecorder.h"

#include <QElapsedTimer>
#include <QString>

#include <cstdio>
#include <functional>
#include <optional>

namespace aerolith {

/// One run of aerolith-scan: its cycles, then its exports. Main thread.
class ScanCommand
{
public:
    /// `complain` is given one line for each thing that went wrong; `output` takes what goes to "-".
    ScanCommand(const Surroundings& surroundings, Arguments arguments, ProgressLine& progress,
                std::FILE* output, std::function<void(const QString&)> complain,
                std::function<void(ExitStatus)> onEnd);

    /// Ends it as if the cycle that ended last had been the last one, without a complaint.
    void interrupt() { m_run.interrupt(); }

private:
    [[nodiscard]] std::optional<int> cycles() const;
    /// The radio, with a recorder in between where one is wanted.
    [[nodiscard]] CWWiFiClient& wifiClient();
    /// For the user who waits.
    [[nodiscard]] QString progress();
    void endCycle();
    void endRun(RunOutcome outcome);
    void writeRecording();
    void writeExports();
    void writeDetails(const Arguments::Details& asked);
    [[nodiscard]] QByteArray list();
    [[nodiscard]] QByteArray details(const WiFiNetwork& network) const;
    void complainOf(const Failure& failure);
    /// The first trouble decides the exit status.
    void trouble(ExitStatus status, const QString& line);

    Surroundings m_surroundings;
    Arguments m_arguments;
    ExportTarget m_target;
    std::function<void(const QString&)> m_complain;
    std::function<void(ExitStatus)> m_onEnd;
    ExitStatus m_status = ExitStatus::success;
    WatchLines m_watchLines;
    std::optional<ScenarioRecorder> m_recorder;
    ScanRun m_run;
    QElapsedTimer m_sinceStart;
    std::optional<RunProgress> m_progress;
};

} // namespace aerolith
