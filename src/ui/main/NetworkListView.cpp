#include "ui/main/NetworkListView.h"

#include "ui/main/NetworkRowDelegate.h"
#include "ui/main/NetworkRowView.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

namespace aerolith {

namespace {

bool isRightButton(const QEvent* event)
{
    const auto* mouse = dynamic_cast<const QMouseEvent*>(event);
    return mouse != nullptr && (mouse->button() == Qt::RightButton || mouse->buttons() == Qt::RightButton);
}

} // namespace

NetworkListView::NetworkListView(QWidget* parent)
    : SteadyListView(
          [](const WiFiNetwork& network, bool isHidden) {
              return NetworkRowView{.network = network, .isHidden = isHidden}.accessibleText();
          },
          parent)
{
    setItemDelegate(new NetworkRowDelegate(this));
    setUniformItemSizes(true);
    setSelectionMode(SingleSelection);
}

void NetworkListView::showNetworks(const ShownNetworks& shown)
{
    const QScopedValueRollback updating(m_updating, true);
    SteadyListView::showNetworks(shown);
}

void NetworkListView::showSelected(const QString& bssid)
{
    if (bssid == m_selectedBSSID) {
        return;
    }
    const QScopedValueRollback updating(m_updating, true);
    m_selectedBSSID = bssid;
    highlightSelected();
}

void NetworkListView::highlightSelected()
{
    const QModelIndex selected = rows().indexOf(m_selectedBSSID);
    if (!selected.isValid()) {
        clearSelection();
    } else if (!selectionModel()->isSelected(selected)) {
        selectionModel()->setCurrentIndex(selected, QItemSelectionModel::ClearAndSelect);
    }
}

void NetworkListView::contextMenuEvent(QContextMenuEvent* event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex row = isByKey ? currentIndex() : indexAt(event->pos());
    if (!row.isValid()) {
        return;
    }
    if (isByKey) {
        scrollTo(row);
    }
    const QPoint position = isByKey ? visualRect(row).center() : event->pos();
    Q_EMIT menuRequested(rows().networks()[row.row()], viewport()->mapToGlobal(position));
}

void NetworkListView::keyPressEvent(QKeyEvent* event)
{
    // Not every window system makes a menu request of them.
    const bool asksForMenu = event->key() == Qt::Key_Menu ||
                             (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
    if (!asksForMenu) {
        SteadyListView::keyPressEvent(event);
        return;
    }
    QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    contextMenuEvent(&request);
}

QItemSelectionModel::SelectionFlags NetworkListView::selectionCommand(const QModelIndex& index,
                                                                      const QEvent* event) const
{
    const auto command = SteadyListView::selectionCommand(index, event);
    // The user selects another access point, never none, and not by asking for its menu.
    const bool deselects = !index.isValid() || command.testFlag(QItemSelectionModel::Deselect);
    return deselects || isRightButton(event) ? QItemSelectionModel::NoUpdate : command;
}

void NetworkListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    SteadyListView::selectionChanged(selected, deselected);
    const QModelIndexList highlighted = selectionModel()->selectedIndexes();
    if (m_updating || highlighted.isEmpty()) {
        return;
    }
    const WiFiNetwork network = rows().networks()[highlighted.first().row()];
    m_selectedBSSID = network.bssid;
    Q_EMIT chosen(network);
}

} // namespace aerolith
