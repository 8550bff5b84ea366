#pragma once

#include "model/SortOption.h"
#include "platform/Result.h"
#include "plug/Simulation.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace aerolith {

enum class ExportFormat
{
    csv,
    json
};

/// What the command line of aerolith-scan asks for. A file named "-" is standard output.
struct Arguments
{
    struct Details
    {
        QString bssid;
        QString file;
    };

    bool help = false;
    bool version = false;
    /// Absent: the machine's own Wi-Fi.
    std::optional<Simulation> simulate;
    /// At least 1; absent: one, or as many as there is time for where `watch` is set.
    std::optional<int> cycles;
    /// Seconds from the start of a cycle to the start of the next, at least 0; absent: the stored scan
    /// interval.
    std::optional<double> interval;
    /// Absent: the order that the last scan gave the list.
    std::optional<SortOption> sort;
    bool visibleOnly = false;
    /// After every cycle a line of JSON for each access point goes to standard output, and nothing else does.
    bool watch = false;
    /// Absent: the list is not written, unless `details` is empty as well.
    std::optional<QString> listFile;
    QList<Details> details;
    ExportFormat format = ExportFormat::csv;
    /// Where what the radio reports goes as a scenario, a file; absent: it is not recorded.
    std::optional<QString> recordFile;
};

/// Reads the arguments, without the program's name. The error names the argument and what was expected. Of an
/// option given twice the last counts, but for --details, which may stand any number of times.
[[nodiscard]] Result<Arguments> parseArguments(const QStringList& arguments);

/// The help text, several lines.
[[nodiscard]] QString usage();

} // namespace aerolith
