#pragma once

#include "platform/Workspace.h"

namespace aerolith {

/// The workspace by the programs that every desktop brings along, found in the PATH and started detached:
/// they outlive this process, and what they print is not mixed with its log.
class XdgWorkspace : public Workspace
{
public:
    [[nodiscard]] Failure openUrl(const QUrl& url) override;
    [[nodiscard]] Failure openFolder(const QString& path) override;
    [[nodiscard]] Failure openSettings(SettingsPage page) override;
    [[nodiscard]] Failure openDiagnostics() override;
    [[nodiscard]] Failure diagnosticsObstacle() const override;
};

} // namespace aerolith
