#include "ui/menubar/StatusMenuController.h"

#include "ui/menubar/StatusIcon.h"
#include "ui/menubar/StatusMenuView.h"
#include "ui/menubar/WaitState.h"

namespace aerolith {

using namespace Qt::StringLiterals;

StatusMenuController::StatusMenuController(WiFiScanner& scanner, const MenuSurroundings& surroundings)
    : m_scanner(scanner), m_surroundings(surroundings), m_connections(surroundings.wifiClient)
{
    if (const std::shared_ptr<CWInterface> interface = surroundings.wifiClient.interface()) {
        m_isWiFiEnabled = interface->powerOn();
    }
    surroundings.mainQueue.async(m_lifeline.guarded([this] {
        setupStatusItem();
        setupPopover();
    }));
}

void StatusMenuController::setWiFiEnabled(bool enabled)
{
    m_isWiFiEnabled = enabled;
    Q_EMIT isWiFiEnabledChanged();
}

void StatusMenuController::setupStatusItem()
{
    m_statusItem = m_surroundings.makeStatusItem();
    connect(m_statusItem.get(), &StatusItem::pressed, this, &StatusMenuController::togglePopover);
    connect(m_statusItem.get(), &StatusItem::buttonAppeared, this,
            [this] { updateStatusIcon(m_isWiFiEnabled); });
    updateStatusIcon(m_isWiFiEnabled);
}

void StatusMenuController::updateStatusIcon(bool isEnabled)
{
    if (!hasStatusItem()) {
        return;
    }
    m_statusItem->setImage(statusIcon(isEnabled ? u"wifi"_s : u"wifi.slash"_s), tr("WiFi"));
    setWiFiEnabled(isEnabled);
}

void StatusMenuController::setupPopover()
{
    m_popover.emplace([this] { return new StatusMenuView(m_scanner, *this, m_connections, m_surroundings); });
}

void StatusMenuController::togglePopover()
{
    // The desktop tells of a press in its own way, past what holds back input meanwhile.
    if (!hasStatusItem() || WaitState::isWaiting()) {
        return;
    }
    if (m_popover && m_popover->isShown()) {
        m_popover->close();
        return;
    }
    if (m_popover) {
        m_popover->show(m_statusItem->frame());
    }
    m_scanner.scanNetworks();
}

} // namespace aerolith
