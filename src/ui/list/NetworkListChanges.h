#pragma once

#include "model/WiFiNetwork.h"

#include <QList>
#include <QSet>
#include <QString>

namespace aerolith {

/// What the rows show: the published list and the BSSIDs marked as hidden.
struct ShownNetworks
{
    /// A BSSID stands in it once.
    WiFiNetworkList networks;
    QSet<QString> hidden;
};

/// The way from one list of rows to the next, in three steps: new rows are appended, all rows are rearranged
/// so that those to be removed come last, these are removed. However much a scan has mixed up, a view is told
/// in three signals at most.
struct NetworkListChanges
{
    /// The rows to append, in their final order.
    WiFiNetworkList arrivals;
    /// Where each row goes, the appended ones included.
    QList<int> destinations;
    /// Whether a row goes anywhere but where it is.
    bool isRearranged = false;
    /// The list once it is rearranged: the next list, then the rows to remove.
    WiFiNetworkList rearranged;
    /// Rows of the next list that were there before and now look different, ascending.
    QList<int> changedRows;
};

[[nodiscard]] NetworkListChanges changesBetween(const ShownNetworks& before, const ShownNetworks& after);

} // namespace aerolith
