#include "app/AerolithApp.h"

namespace aerolith {

AerolithApp::AerolithApp(const Surroundings& surroundings, const DesktopServices& desktop)
    : m_selectionStore(surroundings.mainQueue)
    , m_scanner(m_selectionStore, surroundings)
    , m_dateTexts(surroundings.locale)
    , m_exporter(surroundings.log)
    , m_updaterController(UpdateOptions::standard(surroundings.log),
                          {.userDefaults = surroundings.userDefaults,
                           .mainQueue = surroundings.mainQueue,
                           .clock = surroundings.clock,
                           .log = surroundings.log,
                           .workspace = desktop.workspace})
    , m_mainWindow(m_scanner,
                   {.userDefaults = surroundings.userDefaults,
                    .wifiClient = surroundings.wifiClient,
                    .desktop = desktop,
                    .log = surroundings.log,
                    .detail = {.clock = surroundings.clock, .texts = m_dateTexts, .exporter = m_exporter}})
{
}

void AerolithApp::showMainWindow()
{
    m_mainWindow.show();
}

} // namespace aerolith
