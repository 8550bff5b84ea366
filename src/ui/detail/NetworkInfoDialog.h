#pragma once

#include "platform/CWInterface.h"
#include "platform/HostAddresses.h"
#include "platform/Log.h"
#include "platform/Workspace.h"
#include "ui/common/Sheet.h"

#include <QList>

#include <memory>

namespace aerolith {

class InfoRow;
class TitledBox;

/// The sheet that describes the machine's Wi-Fi interface.
class NetworkInfoDialog : public Sheet
{
    Q_OBJECT

public:
    /// Null is a machine without Wi-Fi. Addresses, workspace and log outlive the dialog.
    NetworkInfoDialog(std::shared_ptr<const CWInterface> interface, const HostAddresses& addresses,
                      Workspace& workspace, Log& log, QWidget* parent = nullptr);

    /// Shows the interface as it is now.
    void readInterface();

private:
    [[nodiscard]] QLayout* makeButtons();
    void openNetworkSettings();

    std::shared_ptr<const CWInterface> m_interface;
    const HostAddresses& m_addresses;
    Workspace& m_workspace;
    Log& m_log;
    TitledBox* m_box;
    QList<InfoRow*> m_rows;
};

} // namespace aerolith
