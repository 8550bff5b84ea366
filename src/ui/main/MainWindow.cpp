#include "ui/main/MainWindow.h"

#include "model/HiddenList.h"
#include "ui/common/Theme.h"

#include <QVBoxLayout>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize minimumContent{800, 500};

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

MainWindow::MainWindow(WiFiScanner& scanner, const UserDefaults& userDefaults)
    : m_scanner(scanner)
    , m_userDefaults(userDefaults)
    , m_count(makeCount())
    , m_list(new NetworkListView)
    , m_publish([this] { showNetworks(); })
{
    setObjectName(u"mainWindow"_s);
    setWindowTitle(u"Aerolith"_s);
    setMinimumSize(minimumContent);

    m_list->setObjectName(u"networkList"_s);
    m_list->setAccessibleName(u"Networks"_s);
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_count);
    column->addWidget(m_list);
    setCentralWidget(content);
    m_list->setFocus();

    connect(&m_scanner, &WiFiScanner::networksChanged, &m_publish, &OncePerTurn::request);
    connect(&m_scanner.selectionStore(), &SelectionStore::selectedBSSIDChanged, this,
            &MainWindow::showSelected);
    connect(m_list, &NetworkListView::chosen, this,
            [this](const WiFiNetwork& network) { m_scanner.selectionStore().select(network); });
    showNetworks();
    showSelected();
}

void MainWindow::showNetworks()
{
    const QStringList hidden = loadHiddenBSSIDs(m_userDefaults);
    m_count->setText(u"%1 Networks"_s.arg(m_scanner.networks().size()));
    m_list->showNetworks(
        {.networks = m_scanner.networks(), .hidden = QSet<QString>(hidden.cbegin(), hidden.cend())});
}

void MainWindow::showSelected()
{
    m_list->showSelected(m_scanner.selectionStore().selectedBSSID().value_or(QString()));
}

} // namespace aerolith
