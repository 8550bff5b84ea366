#include "ui/list/NetworkListChanges.h"

#include <QHash>

namespace aerolith {

namespace {

/// The joined network's row may show its signal history.
bool hasNewSample(const WiFiNetwork& before, const WiFiNetwork& after)
{
    const SignalHistoryList& samples = after.signalHistory;
    return after.isCurrentNetwork && !samples.isEmpty() &&
           (before.signalHistory.isEmpty() || before.signalHistory.last().id != samples.last().id);
}

bool looksTheSame(const WiFiNetwork& a, const WiFiNetwork& b)
{
    return a.rssi == b.rssi && a.isCurrentNetwork == b.isCurrentNetwork && a.channel == b.channel &&
           a.ssid == b.ssid && a.channelBand == b.channelBand && a.security == b.security;
}

bool isMarkChanged(const ShownNetworks& before, const ShownNetworks& after, const QString& bssid)
{
    return before.hidden.contains(bssid) != after.hidden.contains(bssid);
}

QList<int> rowsChangedInPlace(const ShownNetworks& before, const ShownNetworks& after,
                              const QList<int>& rowBefore)
{
    const bool marksDiffer = before.hidden != after.hidden;
    QList<int> changed;
    for (int row = 0; row < static_cast<int>(rowBefore.size()); ++row) {
        if (rowBefore[row] < 0) {
            continue;
        }
        const WiFiNetwork& network = after.networks[row];
        const WiFiNetwork& last = before.networks[rowBefore[row]];
        if (!looksTheSame(last, network) || hasNewSample(last, network) ||
            (marksDiffer && isMarkChanged(before, after, network.bssid))) {
            changed.append(row);
        }
    }
    return changed;
}

} // namespace

NetworkListChanges changesBetween(const ShownNetworks& before, const ShownNetworks& after)
{
    const int countBefore = static_cast<int>(before.networks.size());
    const int countAfter = static_cast<int>(after.networks.size());

    QHash<QString, int> rowAfter;
    rowAfter.reserve(countAfter);
    for (int row = 0; row < countAfter; ++row) {
        rowAfter.insert(after.networks[row].bssid, row);
    }

    NetworkListChanges changes;
    changes.rearranged = after.networks;
    /// For each row of the next list the row it had, or -1.
    QList<int> rowBefore(after.networks.size(), -1);
    for (int row = 0; row < countBefore; ++row) {
        int destination = rowAfter.value(before.networks[row].bssid, -1);
        if (destination >= 0 && rowBefore[destination] < 0) {
            rowBefore[destination] = row;
        } else {
            destination = static_cast<int>(changes.rearranged.size());
            changes.rearranged.append(before.networks[row]);
        }
        changes.destinations.append(destination);
    }
    for (int row = 0; row < countAfter; ++row) {
        if (rowBefore[row] < 0) {
            changes.arrivals.append(after.networks[row]);
            changes.destinations.append(row);
        }
    }
    for (int row = 0; row < static_cast<int>(changes.destinations.size()); ++row) {
        changes.isRearranged = changes.isRearranged || changes.destinations[row] != row;
    }
    changes.changedRows = rowsChangedInPlace(before, after, rowBefore);
    return changes;
}

} // namespace aerolith
