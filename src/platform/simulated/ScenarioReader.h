#pragma once

#include "platform/Result.h"
#include "platform/simulated/Scenario.h"

#include <QByteArray>
#include <QString>

namespace aerolith {

/// Reads a scenario, one UTF-8 JSON object; docs/scenarios/README.md has its keys and their ranges. Strict:
/// what is unknown, repeated, missing, of the wrong type or out of range is an error. Its description is one
/// line that begins with the place, a path such as `cycles[2].networks[0].rssi` or a line and a column, and
/// says what was expected there. Any bytes may be passed.
[[nodiscard]] Result<Scenario> parseScenario(const QByteArray& json);

/// The scenario in a file; errors begin with its path.
[[nodiscard]] Result<Scenario> readScenario(const QString& path);

} // namespace aerolith
