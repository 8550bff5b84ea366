#pragma once

#include "model/WiFiScanner.h"
#include "ui/detail/DetailSurroundings.h"
#include "ui/detail/NetworkDetails.h"

#include <QWidget>

namespace aerolith {

class CustomSignalChart;
class DetailSection;
class DetailStatusBar;

/// Everything that is known about one access point: its signal history as a chart, its facts in three
/// sections, and a status bar below them. Its windowTitle(), ready for a window, is the network's name.
class NetworkDetailView : public QWidget
{
    Q_OBJECT

public:
    /// The scanner outlives the view.
    NetworkDetailView(WiFiScanner& scanner, const DetailSurroundings& surroundings,
                      QWidget* parent = nullptr);

    /// Called with every publish; only what differs is changed. While it is the same access point the chart
    /// goes on; another one, or one that is shown again after the view was put away, begins a new chart.
    void showNetwork(const WiFiNetwork& network);

Q_SIGNALS:
    /// The user has asked for a scan.
    void refreshRequested();

protected:
    void hideEvent(QHideEvent* event) override;

private:
    /// The access point whose chart is shown; null before the first and when the view has been put away.
    QString m_bssid;
    CustomSignalChart* m_chart;
    DetailSection* m_signalOverview;
    DetailSection* m_networkInformation;
    DetailSection* m_advanced;
    DetailStatusBar* m_statusBar;
};

} // namespace aerolith
