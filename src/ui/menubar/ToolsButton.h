#pragma once

#include "platform/Log.h"
#include "platform/Workspace.h"
#include "ui/common/SymbolButton.h"

class QAction;

namespace aerolith {

/// Opens the menu of the desktop's own tools: its Wi-Fi settings and, where there is one, a program that
/// examines a network.
class ToolsButton : public SymbolButton
{
    Q_OBJECT

public:
    /// Both outlive the button.
    ToolsButton(Workspace& workspace, Log& log, QWidget* parent = nullptr);

private:
    void checkDiagnostics();
    void report(const Failure& failure);

    Workspace& m_workspace;
    Log& m_log;
    QAction* m_diagnostics;
};

} // namespace aerolith
