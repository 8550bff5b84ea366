#pragma once

#include <QStyledItemDelegate>

namespace aerolith {

/// Draws the rows of a NetworkListModel: the background in the user's style, the rest as NetworkRowView.
class NetworkRowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace aerolith
