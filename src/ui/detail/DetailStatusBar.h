#pragma once

#include "model/WiFiScanner.h"
#include "ui/common/OncePerTurn.h"
#include "ui/common/SecondaryLabel.h"
#include "ui/common/Spinner.h"
#include "ui/common/StatusBarFrame.h"
#include "ui/detail/DetailSurroundings.h"

#include <optional>

namespace aerolith {

/// The bar below the details of an access point: exports them, tells when it was last heard, and starts a
/// scan.
class DetailStatusBar : public StatusBarFrame
{
    Q_OBJECT

public:
    /// The scanner outlives the bar.
    DetailStatusBar(WiFiScanner& scanner, const DetailSurroundings& surroundings, QWidget* parent = nullptr);

    /// Without a network only the scan is offered.
    void showNetwork(const std::optional<WiFiNetwork>& network);

Q_SIGNALS:
    /// The user has asked for a scan.
    void refreshRequested();

private:
    void layOut();
    void exportDetails();
    /// The network's age is as of now: it grows with every publish, not with a clock.
    void showState();
    void showScanning(bool isScanning);

    WiFiScanner& m_scanner;
    DetailSurroundings m_surroundings;
    std::optional<WiFiNetwork> m_network;
    SymbolButton* m_export;
    SecondaryLabel* m_lastSeen;
    SymbolButton* m_refresh;
    Spinner* m_spinner;
    OncePerTurn m_publish;
};

} // namespace aerolith
