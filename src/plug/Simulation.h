#pragma once

#include "platform/Result.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace aerolith {

/// A simulated radio in place of the machine's own.
struct Simulation
{
    /// Path of the scenario to follow; absent: the built-in neighbourhood.
    std::optional<QString> scenarioFile;

    friend bool operator==(const Simulation&, const Simulation&) = default;
};

/// Takes "--simulate", "--simulate FILE" or "--simulate=FILE" out of a command line (without the program's
/// name) and leaves the rest; absent when it is not there. What begins with a dash is no FILE, except in the
/// form with "=". The error says what is wrong with the option.
[[nodiscard]] Result<std::optional<Simulation>> takeSimulation(QStringList& arguments);

/// Of an argument that a program does not know, in the words of both.
[[nodiscard]] Error unknownArgument(const QString& argument);

} // namespace aerolith
