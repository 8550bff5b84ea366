#pragma once

#include "ui/list/NetworkListModel.h"

#include <QListView>

namespace aerolith {

/// A list of access points. What the user sees of it stays put while scans change it: scroll position,
/// keyboard focus, and the row under the pointer. How a row looks is up to its delegate.
class SteadyListView : public QListView
{
    Q_OBJECT

public:
    /// The width that a delegate asks for: a row takes the view's, whatever that is.
    static constexpr int anyRowWidth = 1;

    /// `describe` puts a row into words.
    explicit SteadyListView(NetworkListModel::Describe describe, QWidget* parent = nullptr);

    virtual void showNetworks(const ShownNetworks& shown);

    [[nodiscard]] const NetworkListModel& rows() const { return m_rows; }

protected:
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

    /// The rows are new, their places on the screen not yet.
    virtual void rowsShown() {}

private:
    void restoreFocus(int row);
    void updateHover();

    NetworkListModel m_rows;
};

} // namespace aerolith
