#include "ui/list/SteadyListView.h"

#include <QCursor>
#include <QHoverEvent>

#include <algorithm>
#include <utility>

namespace aerolith {

SteadyListView::SteadyListView(NetworkListModel::Describe describe, QWidget* parent)
    : QListView(parent), m_rows(std::move(describe))
{
    setModel(&m_rows);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAttribute(Qt::WA_Hover);
}

void SteadyListView::showNetworks(const ShownNetworks& shown)
{
    const bool scrolls = hasAutoScroll();
    setAutoScroll(false);
    const int focusedRow = currentIndex().row();

    m_rows.show(shown);
    restoreFocus(focusedRow);
    rowsShown();
    if (isVisible()) {
        executeDelayedItemsLayout();
        updateHover();
    }
    setAutoScroll(scrolls);
}

/// When the focused row is gone, the row that took its place has the focus.
void SteadyListView::restoreFocus(int row)
{
    if (row >= 0 && !currentIndex().isValid() && m_rows.rowCount() > 0) {
        selectionModel()->setCurrentIndex(m_rows.index(std::min(row, m_rows.rowCount() - 1)),
                                          QItemSelectionModel::NoUpdate);
    }
}

/// The pointer stands still while rows move below it.
void SteadyListView::updateHover()
{
    if (viewport()->underMouse()) {
        const QPointF position = viewport()->mapFromGlobal(QCursor::pos());
        QHoverEvent move(QEvent::HoverMove, position, QCursor::pos(), position);
        viewportEvent(&move);
    }
}

void SteadyListView::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end)
{
    // Otherwise a neighbour of the focused row would take its place.
    const int focused = currentIndex().row();
    if (focused >= start && focused <= end) {
        selectionModel()->clearCurrentIndex();
    }
    QListView::rowsAboutToBeRemoved(parent, start, end);
}

} // namespace aerolith
