#pragma once

#include "platform/DesktopServices.h"
#include "platform/Result.h"
#include "platform/Surroundings.h"
#include "plug/Simulation.h"

#include <QString>

#include <cstdio>
#include <memory>
#include <optional>

namespace aerolith {

/// What a program decides about its surroundings.
struct PlatformOptions
{
    /// Absent: the machine's own Wi-Fi.
    std::optional<Simulation> simulate = {};
    /// Where log lines go: stdout or stderr.
    std::FILE* logStream = stdout;
    /// The settings file; absent: the user's own.
    std::optional<QString> settingsPath = {};
};

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

/// Plugs one platform in. The error, an unreadable scenario, names the file, the place and what was expected
/// there.
[[nodiscard]] Result<std::unique_ptr<PluggedPlatform>> plugPlatform(const PlatformOptions& options);

} // namespace aerolith
