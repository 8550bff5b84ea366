#include "ui/menubar/StatusMenuView.h"

#include "ui/common/Divider.h"
#include "ui/common/SwitchHeader.h"
#include "ui/common/Theme.h"
#include "ui/menubar/ToolsButton.h"
#include "ui/menubar/WaitState.h"

#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr QMargins bottomPadding{12, 8, 12, 8};
constexpr int spinnerDistance = 20;
constexpr int bottomSpacing = 16;
constexpr int textSize = 13;
constexpr int largestListHeight = 300;

QLabel* makeTitle()
{
    auto* title = new QLabel(StatusMenuView::tr("Wi-Fi"));
    title->setTextFormat(Qt::PlainText);
    title->setFont(Theme::font(title->font(), textSize, QFont::Bold));
    return title;
}

Spinner* makeSpinner()
{
    auto* spinner = new Spinner;
    spinner->setObjectName(u"scanning"_s);
    spinner->setAccessibleName(StatusMenuView::tr("Scanning"));
    return spinner;
}

Switch* makePowerSwitch()
{
    auto* power = new Switch;
    power->setObjectName(u"power"_s);
    power->setAccessibleName(StatusMenuView::tr("Wi-Fi"));
    return power;
}

} // namespace

StatusMenuView::StatusMenuView(WiFiScanner& scanner, StatusMenuController& statusMenu,
                               WiFiConnectionManager& connections, MenuSurroundings surroundings)
    : m_scanner(scanner)
    , m_statusMenu(statusMenu)
    , m_connections(connections)
    , m_surroundings(std::move(surroundings))
    , m_wasWiFiEnabled(statusMenu.isWiFiEnabled())
    , m_spinner(makeSpinner())
    , m_power(makePowerSwitch())
    , m_list(new MenuNetworkList)
    , m_publish([this] { showNetworks(); })
{
    setObjectName(u"statusMenuView"_s);
    setAutoFillBackground(true);
    m_list->setObjectName(u"menuNetworks"_s);
    m_list->setAccessibleName(tr("Networks"));
    m_list->setMaximumHeight(Theme::scaledToText(largestListHeight));
    m_power->setChecked(m_wasWiFiEnabled);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addStretch();
    column->addWidget(makeHeader());
    column->addWidget(new Divider(Qt::Horizontal));
    column->addWidget(m_list, 1);
    column->addWidget(new Divider(Qt::Horizontal));
    column->addWidget(makeBottomBar());
    column->addStretch();

    // Assistive technology flips a switch without a click.
    connect(m_power, &Switch::toggled, this, [this](bool on) {
        if (on != m_statusMenu.isWiFiEnabled()) {
            m_statusMenu.setWiFiEnabled(on);
        }
    });
    connect(&m_statusMenu, &StatusMenuController::isWiFiEnabledChanged, this, &StatusMenuView::followSwitch);
    connect(&m_scanner, &WiFiScanner::networksChanged, &m_publish, &OncePerTurn::request);
    connect(&m_scanner, &WiFiScanner::statusChanged, this, &StatusMenuView::showStatus);
    // On a later turn: it shows other windows, and returns only when they are gone.
    connect(m_list, &MenuNetworkList::connectRequested, this, &StatusMenuView::join, Qt::QueuedConnection);
}

QWidget* StatusMenuView::makeHeader()
{
    auto* header = new SwitchHeader(m_power);
    header->leading().setSpacing(spinnerDistance);
    header->leading().addWidget(makeTitle());
    header->leading().addWidget(m_spinner);
    return header;
}

QWidget* StatusMenuView::makeBottomBar()
{
    auto* openApp = new QPushButton(tr("Open App"));
    openApp->setObjectName(u"openApp"_s);
    openApp->setFont(Theme::font(openApp->font(), textSize));
    openApp->setAutoDefault(false);
    connect(openApp, &QPushButton::clicked, this, [this] { m_surroundings.openMainWindow(); });

    auto* tools = new ToolsButton(m_surroundings.workspace, m_surroundings.log);
    tools->setObjectName(u"tools"_s);

    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(bottomPadding);
    row->setSpacing(bottomSpacing);
    row->addWidget(openApp);
    row->addStretch();
    row->addWidget(tools);
    return bar;
}

void StatusMenuView::showEvent(QShowEvent* event)
{
    m_power->setChecked(m_statusMenu.isWiFiEnabled());
    showStatus();
    m_list->showNetworks({.networks = m_scanner.networks(), .hidden = {}});
    m_list->setFocus(Qt::PopupFocusReason);
    QWidget::showEvent(event);
}

void StatusMenuView::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    // Records that nobody sees are not held on to, and the next opening begins at the top.
    m_list->showNetworks({});
}

void StatusMenuView::showNetworks()
{
    if (isVisible()) {
        m_list->showNetworks({.networks = m_scanner.networks(), .hidden = {}});
    }
}

void StatusMenuView::showStatus()
{
    m_spinner->setVisible(m_scanner.status() == ScannerStatus::scanning);
}

void StatusMenuView::followSwitch()
{
    const bool enabled = m_statusMenu.isWiFiEnabled();
    m_power->setChecked(enabled);
    if (std::exchange(m_wasWiFiEnabled, enabled) != enabled) {
        toggleWiFi(enabled);
    }
}

void StatusMenuView::toggleWiFi(bool enabled)
{
    const std::shared_ptr<CWInterface> interface = m_surroundings.wifiClient.interface();
    if (interface == nullptr) {
        return;
    }
    const WaitState waiting;
    if (const Failure failure = interface->setPower(enabled)) {
        m_surroundings.log.line(u"Failed to toggle WiFi: "_s + failure->description);
        return;
    }
    m_statusMenu.updateStatusIcon(enabled);
    if (enabled) {
        m_scanner.scanNetworks();
    }
}

void StatusMenuView::join(const WiFiNetwork& network)
{
    if (m_isJoining) {
        return;
    }
    const QScopedValueRollback joining(m_isJoining, true);
    const std::optional<CWNetwork> found = [&] {
        const WaitState waiting;
        return m_scanner.findNetwork(network.ssidBytes);
    }();
    if (found) {
        m_connections.connectTo(*found);
    }
}

} // namespace aerolith
