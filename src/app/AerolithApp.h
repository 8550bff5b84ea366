#pragma once

#include "app/HideOnClose.h"
#include "app/PortalSettings.h"
#include "app/instance/OneInstance.h"
#include "model/DateTexts.h"
#include "model/SelectionStore.h"
#include "model/WiFiScanner.h"
#include "ui/main/MainWindow.h"
#include "ui/menubar/StatusMenuController.h"
#include "ui/update/UpdaterController.h"

namespace aerolith {

/// The objects that live for the whole process, made once and in this order. A QApplication exists; the
/// surroundings, the instance and the portal's settings outlive it. Main thread.
class AerolithApp
{
public:
    /// While the instance is the session's first, starting the program again shows the main window.
    AerolithApp(const Surroundings& surroundings, const DesktopServices& desktop, const OneInstance& instance,
                PortalSettings& portalSettings);

    /// In front of other windows, hidden or minimised before or not.
    void showMainWindow();

private:
    SelectionStore m_selectionStore;
    WiFiScanner m_scanner;
    UpdaterController m_updaterController;
    StatusMenuController m_statusMenu;
    DateTexts m_dateTexts;
    FileExporter m_exporter;
    MainWindow m_mainWindow;
    HideOnClose m_hideOnClose;
};

} // namespace aerolith
