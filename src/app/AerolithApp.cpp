#include "app/AerolithApp.h"

namespace aerolith {

AerolithApp::AerolithApp(const Surroundings& surroundings)
    : m_selectionStore(surroundings.mainQueue)
    , m_scanner(m_selectionStore, surroundings)
    , m_mainWindow(m_scanner, surroundings.userDefaults)
{
}

void AerolithApp::showMainWindow()
{
    m_mainWindow.show();
}

} // namespace aerolith
