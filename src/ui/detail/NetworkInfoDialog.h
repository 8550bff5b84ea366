#pragma once

#include "platform/CWInterface.h"
#include "platform/HostAddresses.h"
#include "platform/Log.h"
#include "platform/Workspace.h"
#include "ui/common/Sheet.h"

namespace aerolith {

/// The sheet that describes the machine's Wi-Fi interface as it was when the sheet was made.
class NetworkInfoDialog : public Sheet
{
    Q_OBJECT

public:
    /// Null is a machine without Wi-Fi. Workspace and log outlive the dialog.
    NetworkInfoDialog(const CWInterface* interface, const HostAddresses& addresses, Workspace& workspace,
                      Log& log, QWidget* parent = nullptr);

private:
    [[nodiscard]] QLayout* makeButtons();
    void openNetworkSettings();

    Workspace& m_workspace;
    Log& m_log;
};

} // namespace aerolith
