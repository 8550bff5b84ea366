#include "ui/main/NetworkListView.h"

#include "ui/main/NetworkRowDelegate.h"

#include <QContextMenuEvent>
#include <QCursor>
#include <QHoverEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <algorithm>

namespace aerolith {

namespace {

bool isRightButton(const QEvent* event)
{
    const auto* mouse = dynamic_cast<const QMouseEvent*>(event);
    return mouse != nullptr && (mouse->button() == Qt::RightButton || mouse->buttons() == Qt::RightButton);
}

} // namespace

NetworkListView::NetworkListView(QWidget* parent) : QListView(parent)
{
    setModel(&m_networks);
    setItemDelegate(new NetworkRowDelegate(this));
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAttribute(Qt::WA_Hover);
}

void NetworkListView::showNetworks(const ShownNetworks& shown)
{
    const QScopedValueRollback updating(m_updating, true);
    const bool scrolls = hasAutoScroll();
    setAutoScroll(false);
    const int focusedRow = currentIndex().row();

    m_networks.show(shown);
    restoreFocus(focusedRow);
    highlightSelected();
    if (isVisible()) {
        executeDelayedItemsLayout();
        updateHover();
    }
    setAutoScroll(scrolls);
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

/// When the focused row is gone, the row that took its place has the focus.
void NetworkListView::restoreFocus(int row)
{
    if (row >= 0 && !currentIndex().isValid() && m_networks.rowCount() > 0) {
        selectionModel()->setCurrentIndex(m_networks.index(std::min(row, m_networks.rowCount() - 1)),
                                          QItemSelectionModel::NoUpdate);
    }
}

void NetworkListView::highlightSelected()
{
    const QModelIndex selected = m_networks.indexOf(m_selectedBSSID);
    if (!selected.isValid()) {
        clearSelection();
    } else if (!selectionModel()->isSelected(selected)) {
        selectionModel()->setCurrentIndex(selected, QItemSelectionModel::ClearAndSelect);
    }
}

/// The pointer stands still while rows move below it.
void NetworkListView::updateHover()
{
    if (viewport()->underMouse()) {
        const QPointF position = viewport()->mapFromGlobal(QCursor::pos());
        QHoverEvent move(QEvent::HoverMove, position, QCursor::pos(), position);
        viewportEvent(&move);
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
    Q_EMIT menuRequested(m_networks.networks()[row.row()], viewport()->mapToGlobal(position));
}

void NetworkListView::keyPressEvent(QKeyEvent* event)
{
    // Not every window system makes a menu request of them.
    const bool asksForMenu = event->key() == Qt::Key_Menu ||
                             (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
    if (!asksForMenu) {
        QListView::keyPressEvent(event);
        return;
    }
    QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    contextMenuEvent(&request);
}

QItemSelectionModel::SelectionFlags NetworkListView::selectionCommand(const QModelIndex& index,
                                                                      const QEvent* event) const
{
    const auto command = QListView::selectionCommand(index, event);
    // The user selects another access point, never none, and not by asking for its menu.
    const bool deselects = !index.isValid() || command.testFlag(QItemSelectionModel::Deselect);
    return deselects || isRightButton(event) ? QItemSelectionModel::NoUpdate : command;
}

void NetworkListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    const QModelIndexList rows = selectionModel()->selectedIndexes();
    if (m_updating || rows.isEmpty()) {
        return;
    }
    const WiFiNetwork network = m_networks.networks()[rows.first().row()];
    m_selectedBSSID = network.bssid;
    Q_EMIT chosen(network);
}

void NetworkListView::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end)
{
    // Otherwise a neighbour of the focused row would be selected in its place.
    const int focused = currentIndex().row();
    if (focused >= start && focused <= end) {
        selectionModel()->clearCurrentIndex();
    }
    QListView::rowsAboutToBeRemoved(parent, start, end);
}

} // namespace aerolith
