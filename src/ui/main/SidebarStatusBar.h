#pragma once

#include "model/WiFiScanner.h"
#include "ui/common/FileExporter.h"
#include "ui/common/StatusBarFrame.h"

class QComboBox;

namespace aerolith {

/// The bar below the list: exports it, clears it, and chooses its order.
class SidebarStatusBar : public StatusBarFrame
{
    Q_OBJECT

public:
    /// Both outlive the bar.
    SidebarStatusBar(WiFiScanner& scanner, FileExporter& exporter, QWidget* parent = nullptr);

private:
    [[nodiscard]] QWidget* makeSortMenu();
    void exportList();
    void showSortOption();

    WiFiScanner& m_scanner;
    FileExporter& m_exporter;
    QComboBox* m_sortMenu;
};

} // namespace aerolith
