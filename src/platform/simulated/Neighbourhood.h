#pragma once

#include "platform/simulated/Scenario.h"

namespace aerolith {

/// A neighbourhood of about thirty access points for a first look without a scenario file: signals drift,
/// weak and passing access points come and go, and the last cycle leads back to the first without a jump. The
/// same on every machine and in every run.
[[nodiscard]] Scenario neighbourhood();

} // namespace aerolith
