#include "ui/main/Sidebar.h"

#include "model/HiddenList.h"
#include "ui/common/Divider.h"
#include "ui/common/SwitchHeader.h"
#include "ui/common/Theme.h"
#include "ui/main/SidebarStatusBar.h"

#include <QMenu>
#include <QVBoxLayout>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QLabel* makeCount()
{
    auto* count = new QLabel;
    count->setObjectName(u"networkCount"_s);
    count->setTextFormat(Qt::PlainText);
    count->setFont(Theme::font(count->font(), 11, QFont::DemiBold));
    count->setContentsMargins(12, 8, 12, 6);
    return count;
}

} // namespace

Sidebar::Sidebar(WiFiScanner& scanner, const UserDefaults& userDefaults, FileExporter& exporter,
                 QWidget* parent)
    : QWidget(parent)
    , m_scanner(scanner)
    , m_userDefaults(userDefaults)
    , m_filter(new Switch)
    , m_count(makeCount())
    , m_list(new NetworkListView)
    , m_publish([this] { showNetworks(); })
{
    // One surface with the list.
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    m_filter->setObjectName(u"filter"_s);
    m_list->setObjectName(u"networkList"_s);
    m_list->setAccessibleName(tr("Networks"));

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(new SwitchHeader(m_filter));
    column->addWidget(new Divider(Qt::Horizontal));
    column->addWidget(m_count);
    column->addWidget(m_list);
    column->addWidget(new SidebarStatusBar(m_scanner, exporter));

    // Assistive technology flips a switch without a click.
    connect(m_filter, &Switch::toggled, this, [this](bool show) {
        if (show != m_scanner.showHiddenNetworks()) {
            m_scanner.setShowHiddenNetworks(show);
        }
    });
    connect(m_list, &NetworkListView::chosen, this,
            [this](const WiFiNetwork& network) { m_scanner.selectionStore().select(network); });
    connect(m_list, &NetworkListView::menuRequested, this, &Sidebar::openMenu);
    connect(&m_scanner, &WiFiScanner::showHiddenNetworksChanged, this, &Sidebar::showFilter);
    connect(&m_scanner, &WiFiScanner::networksChanged, &m_publish, &OncePerTurn::request);
    connect(&m_scanner.selectionStore(), &SelectionStore::selectedBSSIDChanged, this, &Sidebar::showSelected);
    showFilter();
    showNetworks();
    showSelected();
}

void Sidebar::showFilter()
{
    m_filter->setChecked(m_scanner.showHiddenNetworks());
    m_filter->setText(m_scanner.showHiddenNetworks() ? tr("All Networks") : tr("Hiding Hidden"));
}

void Sidebar::showNetworks()
{
    const QStringList hidden = loadHiddenBSSIDs(m_userDefaults);
    m_count->setText(tr("%n Networks", nullptr, static_cast<int>(m_scanner.networks().size())));
    m_list->showNetworks(
        {.networks = m_scanner.networks(), .hidden = QSet<QString>(hidden.cbegin(), hidden.cend())});
}

void Sidebar::showSelected()
{
    m_list->showSelected(m_scanner.selectionStore().selectedBSSID().value_or(QString()));
}

void Sidebar::openMenu(const WiFiNetwork& network, const QPoint& position)
{
    auto* menu = new QMenu(this);
    menu->setObjectName(u"networkMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString bssid = network.bssid;
    if (m_scanner.isHidden(bssid)) {
        menu->addAction(tr("Show Network"), this, [this, bssid] { m_scanner.unhideNetwork(bssid); });
    } else {
        menu->addAction(tr("Hide Network"), this, [this, bssid] { m_scanner.hideNetwork(bssid); });
    }
    menu->popup(position);
}

} // namespace aerolith
