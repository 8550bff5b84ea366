#include "ui/list/NetworkListModel.h"

#include "ui/common/PlainText.h"

#include <algorithm>
#include <utility>

namespace aerolith {

NetworkListModel::NetworkListModel(Describe describe, QObject* parent)
    : QAbstractListModel(parent), m_describe(std::move(describe))
{
}

void NetworkListModel::show(const ShownNetworks& shown)
{
    const NetworkListChanges changes = changesBetween(m_shown, shown);
    m_shown.hidden = shown.hidden;
    append(changes.arrivals);
    rearrange(changes);
    removeBehind(shown.networks);
    announce(changes.changedRows);
}

void NetworkListModel::append(const WiFiNetworkList& arrivals)
{
    if (arrivals.isEmpty()) {
        return;
    }
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(arrivals.size()) - 1);
    m_shown.networks.append(arrivals);
    endInsertRows();
}

void NetworkListModel::rearrange(const NetworkListChanges& changes)
{
    if (!changes.isRearranged) {
        m_shown.networks = changes.rearranged;
        return;
    }
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList from = persistentIndexList();
    QModelIndexList to;
    to.reserve(from.size());
    for (const QModelIndex& row : from) {
        to.append(index(changes.destinations[row.row()]));
    }
    m_shown.networks = changes.rearranged;
    changePersistentIndexList(from, to);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void NetworkListModel::removeBehind(const WiFiNetworkList& networks)
{
    const int count = static_cast<int>(networks.size());
    if (count == rowCount()) {
        return;
    }
    beginRemoveRows({}, count, rowCount() - 1);
    m_shown.networks = networks;
    endRemoveRows();
}

void NetworkListModel::announce(const QList<int>& changedRows)
{
    for (auto first = changedRows.cbegin(); first != changedRows.cend();) {
        auto last = first;
        while (std::next(last) != changedRows.cend() && *std::next(last) == *last + 1) {
            ++last;
        }
        Q_EMIT dataChanged(index(*first), index(*last));
        first = std::next(last);
    }
}

QModelIndex NetworkListModel::indexOf(const QString& bssid) const
{
    if (bssid.isNull()) {
        return {};
    }
    const auto found = std::find_if(networks().cbegin(), networks().cend(),
                                    [&](const WiFiNetwork& network) { return network.bssid == bssid; });
    return found != networks().cend() ? index(static_cast<int>(found - networks().cbegin())) : QModelIndex();
}

int NetworkListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(networks().size());
}

QVariant NetworkListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const WiFiNetwork& network = networks()[index.row()];
    const bool isHidden = m_shown.hidden.contains(network.bssid);
    switch (role) {
    case networkRole:
        return QVariant::fromValue(network);
    case isHiddenRole:
        return isHidden;
    case Qt::DisplayRole:
        return singleLine(network.ssid);
    case Qt::AccessibleTextRole:
        return m_describe(network, isHidden);
    default:
        return {};
    }
}

} // namespace aerolith
