#pragma once

#include "model/WiFiScanner.h"
#include "platform/UserDefaults.h"
#include "ui/common/OncePerTurn.h"
#include "ui/main/NetworkListView.h"

#include <QLabel>
#include <QMainWindow>

namespace aerolith {

/// The main window: the scanner's published list, with the selection that the whole program shares.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Both outlive the window.
    MainWindow(WiFiScanner& scanner, const UserDefaults& userDefaults);

private:
    void showNetworks();
    void showSelected();

    WiFiScanner& m_scanner;
    const UserDefaults& m_userDefaults;
    QLabel* m_count;
    NetworkListView* m_list;
    OncePerTurn m_publish;
};

} // namespace aerolith
