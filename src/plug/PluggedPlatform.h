#pragma once

#include "platform/DesktopServices.h"
#include "platform/Result.h"
#include "platform/Surroundings.h"
#include "plug/Simulation.h"

#include <memory>
#include <optional>

namespace aerolith {

/// The platform that a program runs on, and the only place that knows which one it is. Main thread; a
/// QCoreApplication exists.
class PluggedPlatform
{
public:
    PluggedPlatform() = default;
    PluggedPlatform(const PluggedPlatform&) = delete;
    PluggedPlatform& operator=(const PluggedPlatform&) = delete;
    virtual ~PluggedPlatform() = default;

    /// References to what this object owns.
    [[nodiscard]] virtual Surroundings surroundings() = 0;

    /// References to what this object owns.
    [[nodiscard]] virtual DesktopServices desktopServices() = 0;

    /// Ends the scans and joins that are under way, and every later one, as soon as the platform can: to be
    /// called before the engine is destroyed, which waits for its scan. Any thread.
    virtual void stopScanning() = 0;
};

/// Plugs one platform in: a simulated one, or where that is absent the machine. The log outlives it. The
/// error, an unreadable scenario, names the file, the place and what was expected there.
[[nodiscard]] Result<std::unique_ptr<PluggedPlatform>> plugPlatform(const std::optional<Simulation>& simulate,
                                                                    Log& log);

} // namespace aerolith
