#include "ui/main/MainWindow.h"

#include "ui/common/Divider.h"
#include "ui/detail/NetworkInfoDialog.h"
#include "ui/main/ToolBar.h"
#include "ui/settings/SettingsView.h"

#include <QVBoxLayout>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize symbolSize{18, 18};
constexpr int separatorHeight = 16;

QWidget* makeSeparator()
{
    auto* separator = new Divider(Qt::Vertical);
    separator->setFixedHeight(separatorHeight);
    return separator;
}

SymbolButton* makeToolButton(const QString& objectName, const QString& symbol, const QString& name)
{
    auto* button = new SymbolButton(symbol, name);
    button->setObjectName(objectName);
    button->setIconSize(symbolSize);
    return button;
}

/// Over its window alone. Made anew each time, it shows how things are then.
void openOver(Sheet* sheet)
{
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

} // namespace

MainWindow::MainWindow(WiFiScanner& scanner, const WindowSurroundings& surroundings)
    : m_scanner(scanner)
    , m_surroundings(surroundings)
    , m_content(new ContentView(scanner, surroundings))
    , m_sidebarButton(makeToolButton(u"toggleSidebar"_s, u"sidebar.left"_s, {}))
    , m_settingsButton(makeToolButton(u"settings"_s, u"gear"_s, tr("Settings")))
    , m_infoButton(makeToolButton(u"networkInfo"_s, u"info.circle"_s, tr("Wi-Fi interface information")))
{
    setObjectName(u"mainWindow"_s);
    m_content->setObjectName(u"content"_s);
    auto* rows = new QWidget;
    auto* column = new QVBoxLayout(rows);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(makeToolBar());
    column->addWidget(m_content);
    setCentralWidget(rows);
    m_content->focusList();

    connect(m_sidebarButton, &SymbolButton::clicked, this, &MainWindow::toggleSidebar);
    connect(m_settingsButton, &SymbolButton::clicked, this, &MainWindow::openSettings);
    connect(m_infoButton, &SymbolButton::clicked, this, &MainWindow::openNetworkInfo);
    connect(m_content, &ContentView::titleChanged, this, &MainWindow::setWindowTitle);
    nameSidebarButton();
    setWindowTitle(m_content->title());
}

QWidget* MainWindow::makeToolBar()
{
    auto* toolBar = new ToolBar;
    toolBar->setObjectName(u"toolBar"_s);
    toolBar->row().addWidget(m_sidebarButton);
    toolBar->row().addStretch();
    toolBar->row().addWidget(m_settingsButton);
    toolBar->row().addWidget(makeSeparator());
    toolBar->row().addWidget(m_infoButton);
    return toolBar;
}

void MainWindow::openSettings()
{
    openOver(new SettingsView(m_scanner, m_surroundings.userDefaults, m_surroundings.desktop.loginItem,
                              m_surroundings.log, this));
}

void MainWindow::openNetworkInfo()
{
    auto* dialog =
        new NetworkInfoDialog(m_surroundings.wifiClient.interface(), m_surroundings.desktop.hostAddresses,
                              m_surroundings.desktop.workspace, m_surroundings.log, this);
    connect(&m_scanner, &WiFiScanner::networksChanged, dialog, &NetworkInfoDialog::readInterface);
    openOver(dialog);
}

void MainWindow::toggleSidebar()
{
    m_content->setSidebarShown(!m_content->isSidebarShown());
    nameSidebarButton();
}

void MainWindow::nameSidebarButton()
{
    m_sidebarButton->setAccessibleName(m_content->isSidebarShown() ? tr("Hide sidebar") : tr("Show sidebar"));
}

} // namespace aerolith
