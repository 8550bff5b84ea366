#pragma once

#include "ui/list/SteadyListView.h"

namespace aerolith {

/// The list of access points, one of them selected. The selection stays with its access point while scans
/// change the list.
class NetworkListView : public SteadyListView
{
    Q_OBJECT

public:
    explicit NetworkListView(QWidget* parent = nullptr);

    void showNetworks(const ShownNetworks& shown) override;

    /// Highlights the access point, listed or not yet; null for none. Scrolls to it if that is a change.
    void showSelected(const QString& bssid);

Q_SIGNALS:
    /// The user has selected an access point, by pointer or keys.
    void chosen(const WiFiNetwork& network);

    /// The user wants the menu of an access point, by pointer or keys: at `position` on the screen.
    void menuRequested(const WiFiNetwork& network, const QPoint& position);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                                       const QEvent* event) const override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

    void rowsShown() override { highlightSelected(); }

private:
    void highlightSelected();

    /// Null when nothing is selected.
    QString m_selectedBSSID;
    /// While the program, not the user, changes rows and selection.
    bool m_updating = false;
};

} // namespace aerolith
