#pragma once

#include "ui/list/NetworkListChanges.h"

#include <QAbstractListModel>
#include <QString>

#include <functional>

namespace aerolith {

/// The published list as rows, each an access point known by its BSSID: what a view holds on to (selection,
/// focus) follows the access point from one published list to the next. Main thread.
class NetworkListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// A WiFiNetwork.
    static constexpr int networkRole = Qt::UserRole;
    /// Whether the user has hidden the access point, which is listed because hidden ones are shown.
    static constexpr int isHiddenRole = Qt::UserRole + 1;

    /// A row in words, for assistive technology.
    using Describe = std::function<QString(const WiFiNetwork& network, bool isHidden)>;

    explicit NetworkListModel(Describe describe, QObject* parent = nullptr);

    /// Announces at most one insertion, one change of order and one removal, then the rows that look
    /// different from before.
    void show(const ShownNetworks& shown);

    [[nodiscard]] const WiFiNetworkList& networks() const { return m_shown.networks; }

    /// Invalid when the access point is not listed, and for null.
    [[nodiscard]] QModelIndex indexOf(const QString& bssid) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    void append(const WiFiNetworkList& arrivals);
    void rearrange(const NetworkListChanges& changes);
    void removeBehind(const WiFiNetworkList& networks);
    void announce(const QList<int>& changedRows);

    Describe m_describe;
    ShownNetworks m_shown;
};

} // namespace aerolith
