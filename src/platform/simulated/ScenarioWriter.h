#pragma once

#include "platform/simulated/Scenario.h"

#include <QByteArray>

namespace aerolith {

/// The scenario as parseScenario() reads it, a line for each network. Numbers are in the ranges of the
/// format. Two things have no place in it: the bytes of a name that is not UTF-8, which stands as its text,
/// and the bytes of one that is withheld.
[[nodiscard]] QByteArray scenarioJson(const Scenario& scenario);

/// One cycle, as it stands in the scenario's text.
[[nodiscard]] QByteArray cycleJson(const ScenarioCycle& cycle);

} // namespace aerolith
