#include "ui/main/SidebarStatusBar.h"

#include "export/NetworkCsv.h"
#include "ui/common/SymbolView.h"

#include <QComboBox>
#include <QLabel>
#include <QWheelEvent>

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int itemSpacing = 12;
constexpr int sortMenuWidth = 180;
constexpr int sortSymbolSize = 14;

/// Without the keyboard's focus it leaves the wheel alone: who scrolls past it wants no other order.
class SortMenu : public QComboBox
{
public:
    SortMenu() { setFocusPolicy(Qt::StrongFocus); }

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

} // namespace

SidebarStatusBar::SidebarStatusBar(WiFiScanner& scanner, FileExporter& exporter, QWidget* parent)
    : StatusBarFrame(parent), m_scanner(scanner), m_exporter(exporter), m_sortMenu(new SortMenu)
{
    auto* exportButton = makeButton(u"exportList"_s, u"square.and.arrow.up"_s, tr("Export network list"));
    auto* clearButton = makeButton(u"clearList"_s, u"trash"_s, tr("Clear network list"));
    row().setSpacing(itemSpacing - 2 * SymbolButton::margin);
    row().addWidget(exportButton);
    row().addWidget(clearButton);
    row().addStretch();
    row().addWidget(makeSortMenu());
    row().addSpacing(SymbolButton::margin);

    connect(exportButton, &SymbolButton::clicked, this, &SidebarStatusBar::exportList);
    connect(clearButton, &SymbolButton::clicked, this, [this] { m_scanner.clearNetworks(); });
    connect(m_sortMenu, &QComboBox::activated, this,
            [this](int entry) { m_scanner.setSortOption(m_sortMenu->itemData(entry).value<SortOption>()); });
    connect(&m_scanner, &WiFiScanner::sortOptionChanged, this, &SidebarStatusBar::showSortOption);
    showSortOption();
}

/// The menu behind the symbol that stands for its title.
QWidget* SidebarStatusBar::makeSortMenu()
{
    m_sortMenu->setObjectName(u"sortMenu"_s);
    m_sortMenu->setAccessibleName(tr("Sort by"));
    m_sortMenu->addItem(tr("Signal Strength"), QVariant::fromValue(SortOption::signal));
    m_sortMenu->addItem(tr("Network Name"), QVariant::fromValue(SortOption::ssid));
    m_sortMenu->addItem(tr("Channel"), QVariant::fromValue(SortOption::channel));
    m_sortMenu->addItem(tr("Security Type"), QVariant::fromValue(SortOption::security));

    auto* menu = new QWidget;
    // Assistive technology takes the chosen entry for a menu's name, and its purpose from a label.
    auto* title = new QLabel(tr("Sort by"), menu);
    title->setBuddy(m_sortMenu);
    title->hide();
    auto* titled = new QHBoxLayout(menu);
    titled->setContentsMargins({});
    titled->addWidget(
        new SymbolView(u"arrow.up.arrow.down"_s, sortSymbolSize, SymbolView::Emphasis::secondary));
    titled->addWidget(m_sortMenu, 1);
    menu->setFixedWidth(std::max(sortMenuWidth, titled->sizeHint().width()));
    return menu;
}

void SidebarStatusBar::exportList()
{
    m_exporter.save(*this, u"wifi_networks.csv"_s,
                    [this] { return CSVFile(networkListCSV(m_scanner.networks())); });
}

void SidebarStatusBar::showSortOption()
{
    m_sortMenu->setCurrentIndex(m_sortMenu->findData(QVariant::fromValue(m_scanner.sortOption())));
    // A screen reader that has said the purpose does not say the name.
    m_sortMenu->setAccessibleDescription(m_sortMenu->currentText());
}

} // namespace aerolith
