#pragma once

#include "model/WiFiScanner.h"
#include "platform/Lifeline.h"
#include "ui/menubar/MenuSurroundings.h"
#include "ui/menubar/StatusPopover.h"
#include "ui/menubar/WiFiConnectionManager.h"

#include <optional>

namespace aerolith {

/// The program's presence in the desktop's bar: an icon that shows whether the radio is on, and a popover
/// with the compact list of networks. Main thread. Its published property notifies after every assignment,
/// also of an equal value.
class StatusMenuController : public QObject
{
    Q_OBJECT

public:
    /// The item and the popover follow on a later turn of the main queue. The scanner outlives the
    /// controller.
    StatusMenuController(WiFiScanner& scanner, const MenuSurroundings& surroundings);

    /// The radio's state as the program last knew it: switched elsewhere, it goes unnoticed.
    [[nodiscard]] bool isWiFiEnabled() const { return m_isWiFiEnabled; }

    void setWiFiEnabled(bool enabled);

    /// Shows a state of the radio and publishes it; neither while there is no button.
    void updateStatusIcon(bool isEnabled);

    /// Whether the user can reach the program through its icon.
    [[nodiscard]] bool hasStatusItem() const { return m_statusItem != nullptr && m_statusItem->hasButton(); }

Q_SIGNALS:
    void isWiFiEnabledChanged();

private:
    void setupStatusItem();
    void setupPopover();
    void togglePopover();

    WiFiScanner& m_scanner;
    MenuSurroundings m_surroundings;
    WiFiConnectionManager m_connections;
    bool m_isWiFiEnabled = true;
    std::unique_ptr<StatusItem> m_statusItem;
    std::optional<StatusPopover> m_popover;
    Lifeline m_lifeline;
};

} // namespace aerolith
