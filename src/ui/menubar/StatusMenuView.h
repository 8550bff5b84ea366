#pragma once

#include "ui/common/OncePerTurn.h"
#include "ui/common/Spinner.h"
#include "ui/common/Switch.h"
#include "ui/menubar/MenuNetworkList.h"
#include "ui/menubar/StatusMenuController.h"

namespace aerolith {

/// What is in the popover: the radio's switch, the list of networks to join, and a bar with ways into the
/// program and the desktop's own tools. While it is hidden it keeps nothing up to date.
class StatusMenuView : public QWidget
{
    Q_OBJECT

public:
    /// All of them outlive the view.
    StatusMenuView(WiFiScanner& scanner, StatusMenuController& statusMenu, WiFiConnectionManager& connections,
                   MenuSurroundings surroundings);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    [[nodiscard]] QWidget* makeHeader();
    [[nodiscard]] QWidget* makeBottomBar();

    void showNetworks();
    void showStatus();
    void followSwitch();
    void toggleWiFi(bool enabled);
    void join(const WiFiNetwork& network);

    WiFiScanner& m_scanner;
    StatusMenuController& m_statusMenu;
    WiFiConnectionManager& m_connections;
    MenuSurroundings m_surroundings;
    /// As the view last saw it.
    bool m_wasWiFiEnabled;
    /// Until the user has been told how the last join ended there is no other.
    bool m_isJoining = false;
    Spinner* m_spinner;
    Switch* m_power;
    MenuNetworkList* m_list;
    OncePerTurn m_publish;
};

} // namespace aerolith
