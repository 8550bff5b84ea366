#include "ui/main/NetworkRowDelegate.h"

#include "ui/list/SteadyListView.h"
#include "ui/main/NetworkRowView.h"

#include <QApplication>
#include <QPainter>

namespace aerolith {

void NetworkRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const
{
    QStyleOptionViewItem background = option;
    // The selection stands for what the rest of the window shows: it does not fade with the focus.
    background.state |= QStyle::State_Active;
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &background, painter, option.widget);

    const NetworkRowView row{.network = index.data(NetworkListModel::networkRole).value<WiFiNetwork>(),
                             .isHidden = index.data(NetworkListModel::isHiddenRole).toBool(),
                             .isSelected = option.state.testFlag(QStyle::State_Selected)};
    QPalette palette = option.palette;
    palette.setCurrentColorGroup(QPalette::Active);
    painter->setLayoutDirection(option.direction);
    row.paint(*painter, option.rect, palette, option.font);
}

QSize NetworkRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {SteadyListView::anyRowWidth, NetworkRowView::height(option.font)};
}

} // namespace aerolith
