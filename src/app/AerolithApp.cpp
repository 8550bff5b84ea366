#include "app/AerolithApp.h"

#include "app/MainMenu.h"
#include "app/WindowIcon.h"
#include "app/instance/ShowInFront.h"
#include "ui/menubar/TrayStatusItem.h"

namespace aerolith {

AerolithApp::AerolithApp(const Surroundings& surroundings, const DesktopServices& desktop,
                         const OneInstance& instance, PortalSettings& portalSettings)
    : m_selectionStore(surroundings.mainQueue)
    , m_scanner(m_selectionStore, surroundings)
    , m_updaterController(UpdateOptions::standard(surroundings.log),
                          {.userDefaults = surroundings.userDefaults,
                           .mainQueue = surroundings.mainQueue,
                           .clock = surroundings.clock,
                           .log = surroundings.log,
                           .workspace = desktop.workspace})
    , m_statusMenu(m_scanner, {.wifiClient = surroundings.wifiClient,
                               .mainQueue = surroundings.mainQueue,
                               .workspace = desktop.workspace,
                               .log = surroundings.log,
                               .openMainWindow = [this] { showMainWindow(); },
                               .makeStatusItem = [] { return std::make_unique<TrayStatusItem>(); }})
    , m_dateTexts(surroundings.locale)
    , m_exporter(surroundings.log)
    , m_mainWindow(m_scanner,
                   {.userDefaults = surroundings.userDefaults,
                    .wifiClient = surroundings.wifiClient,
                    .desktop = desktop,
                    .log = surroundings.log,
                    .detail = {.clock = surroundings.clock, .texts = m_dateTexts, .exporter = m_exporter}})
    , m_hideOnClose(m_mainWindow,
                    [this, &instance] { return instance.isFirst() || m_statusMenu.hasStatusItem(); })
{
    setWindowIconOnceShown(m_mainWindow);
    portalSettings.followAfterPainting(m_mainWindow);
    addMainMenu(
        m_mainWindow,
        {.updater = m_updaterController.updater(), .workspace = desktop.workspace, .log = surroundings.log});
    QObject::connect(&instance, &OneInstance::startedAgain, &m_mainWindow,
                     [this](const StartupToken& token) { showInFront(m_mainWindow, token); });
}

void AerolithApp::showMainWindow()
{
    showInFront(m_mainWindow);
}

} // namespace aerolith
