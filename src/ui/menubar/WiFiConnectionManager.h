#pragma once

#include "platform/CWWiFiClient.h"

namespace aerolith {

/// Joins the machine to a network that the user has picked: asks for the password where its kind needs one,
/// and says in an alert why it has failed. Keeps nothing between two joins. Main thread.
class WiFiConnectionManager
{
public:
    /// The client outlives the manager.
    explicit WiFiConnectionManager(CWWiFiClient& wifiClient) : m_wifiClient(wifiClient) {}

    /// Returns when the join is over, or given up by the user, and its alert is dismissed. Without an
    /// interface it does nothing. Windows repaint meanwhile, and take input only where the user is asked.
    void connectTo(const CWNetwork& network);

private:
    static void associateOpen(const CWNetwork& network, CWInterface& interface);
    static void promptAndAssociate(const CWNetwork& network, CWInterface& interface);

    CWWiFiClient& m_wifiClient;
};

} // namespace aerolith
