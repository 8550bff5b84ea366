#pragma once

#include "platform/Result.h"

#include <QUrl>

namespace aerolith {

/// A page of the system's own settings.
enum class SettingsPage
{
    network,
    wifi
};

/// The desktop that the program runs on, as the opener of what other programs show. Each operation starts the
/// other program and returns without waiting for what becomes of it; the error says why none was started.
/// Main thread.
class Workspace
{
public:
    Workspace() = default;
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;
    virtual ~Workspace() = default;

    /// An http, https or mailto URL, in the program that the user has chosen for it; every other scheme is
    /// refused.
    [[nodiscard]] virtual Failure openUrl(const QUrl& url) = 0;

    /// A folder that is there, by its absolute path, in the file manager.
    [[nodiscard]] virtual Failure openFolder(const QString& path) = 0;

    /// In the settings program of the running desktop.
    [[nodiscard]] virtual Failure openSettings(SettingsPage page) = 0;

    /// In a program that helps to find out what is wrong with a network.
    [[nodiscard]] virtual Failure openDiagnostics() = 0;

    /// Why openDiagnostics() would start nothing now: there is no such program.
    [[nodiscard]] virtual Failure diagnosticsObstacle() const = 0;
};

} // namespace aerolith
