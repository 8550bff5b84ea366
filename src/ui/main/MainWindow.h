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

private:
    void addToolBar();
    void toggleSidebar();
    void nameSidebarButton();

    ContentView* m_content;
    SymbolButton* m_sidebarButton;
};

} // namespace aerolith
