#pragma once

#include "platform/Result.h"
#include "plug/Simulation.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace aerolith {

/// What the user asked for when starting the program.
struct CommandLine
{
    enum class Action
    {
        run,
        showHelp,
        showVersion
    };

    Action action = Action::run;
    /// Absent: the machine's own Wi-Fi.
    std::optional<Simulation> simulate = {};
};

/// `arguments` are without the program's name. The error says which argument is wrong.
[[nodiscard]] Result<CommandLine> parseCommandLine(QStringList arguments);

[[nodiscard]] QString helpText();

} // namespace aerolith
