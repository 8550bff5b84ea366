#pragma once

#include "model/WiFiNetwork.h"

#include <QList>
#include <QString>

namespace aerolith {

/// One fact about an access point.
struct NetworkDetail
{
    /// Of its row among the widgets.
    QString name;
    /// Verbatim in every language, as is the value, whatever the air has sent.
    QString label;
    QString value;
    /// What the fact means.
    QString tooltip;
};

using NetworkDetailList = QList<NetworkDetail>;

/// All that is shown about an access point besides the chart, in the order of display.
struct NetworkDetails
{
    explicit NetworkDetails(const WiFiNetwork& network);

    NetworkDetailList signalOverview;
    NetworkDetailList networkInformation;
    NetworkDetailList advanced;
};

/// What the chart shows, in words: the network's name, its latest, lowest and highest signal and how many
/// samples there are.
[[nodiscard]] QString signalSummary(const WiFiNetwork& network);

} // namespace aerolith
