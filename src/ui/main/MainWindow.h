#pragma once

#include "ui/common/SymbolButton.h"
#include "ui/main/ContentView.h"

#include <QMainWindow>

namespace aerolith {

/// The main window: a toolbar over the content, named after the access point that is shown.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The scanner outlives the window.
    MainWindow(WiFiScanner& scanner, const WindowSurroundings& surroundings);

    /// The sidebar collapses, or comes back as wide as it was.
    void toggleSidebar();

private:
    [[nodiscard]] QWidget* makeToolBar();
    void openSettings();
    void openNetworkInfo();
    void nameSidebarButton();

    WiFiScanner& m_scanner;
    WindowSurroundings m_surroundings;
    ContentView* m_content;
    SymbolButton* m_sidebarButton;
    SymbolButton* m_settingsButton;
    SymbolButton* m_infoButton;
};

} // namespace aerolith
