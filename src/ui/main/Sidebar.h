#pragma once

#include "model/WiFiScanner.h"
#include "platform/UserDefaults.h"
#include "ui/common/FileExporter.h"
#include "ui/common/OncePerTurn.h"
#include "ui/common/Switch.h"
#include "ui/main/NetworkListView.h"

#include <QLabel>

namespace aerolith {

/// The list of access points between its filter and its status bar.
class Sidebar : public QWidget
{
    Q_OBJECT

public:
    /// All of them outlive the sidebar.
    Sidebar(WiFiScanner& scanner, const UserDefaults& userDefaults, FileExporter& exporter,
            QWidget* parent = nullptr);

    void focusList() { m_list->setFocus(); }

private:
    void showNetworks();
    void showSelected();
    void showFilter();
    void openMenu(const WiFiNetwork& network, const QPoint& position);

    WiFiScanner& m_scanner;
    const UserDefaults& m_userDefaults;
    Switch* m_filter;
    QLabel* m_count;
    NetworkListView* m_list;
    OncePerTurn m_publish;
};

} // namespace aerolith
