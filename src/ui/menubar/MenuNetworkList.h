#pragma once

#include "ui/list/SteadyListView.h"

#include <QPersistentModelIndex>

namespace aerolith {

/// The popover's rows. A row's button joins its network; so does Return on the row that the arrow keys have
/// led to. Until a key is used no row stands out.
class MenuNetworkList : public SteadyListView
{
    Q_OBJECT

public:
    explicit MenuNetworkList(QWidget* parent = nullptr);

    /// The row is shown as the keys' own.
    [[nodiscard]] bool isFocused(const QModelIndex& row) const;

Q_SIGNALS:
    /// The user wants to join this network, which is not the joined one.
    void connectRequested(const WiFiNetwork& network);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// The row whose button is there; invalid where there is none.
    [[nodiscard]] QModelIndex buttonAt(const QPoint& position) const;
    void setUsesKeys(bool uses);
    void requestConnect(const QModelIndex& row);

    bool m_usesKeys = false;
    QPersistentModelIndex m_pressed;
};

} // namespace aerolith
