#pragma once

namespace aerolith {

/// Exit statuses of aerolith-scan.
enum class ExitStatus
{
    success = 0,
    /// The last cycle failed, or a file could not be written.
    failed = 1,
    /// Wrong arguments or an unreadable scenario.
    usage = 2,
    noInterface = 3,
    /// An access point asked for is not known.
    unknownAccessPoint = 4,
};

} // namespace aerolith
