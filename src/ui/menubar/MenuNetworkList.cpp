#include "ui/menubar/MenuNetworkList.h"

#include "ui/menubar/NetworkRowInMenu.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <utility>

namespace aerolith {

namespace {

class RowDelegate : public QStyledItemDelegate
{
public:
    explicit RowDelegate(MenuNetworkList& list) : QStyledItemDelegate(&list), m_list(list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->setLayoutDirection(option.direction);
        NetworkRowInMenu{.network = m_list.rows().networks()[index.row()],
                         .isHovering = option.state.testFlag(QStyle::State_MouseOver),
                         .isFocused = m_list.isFocused(index)}
            .paint(*painter, option.rect, option.palette, option.font);
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool isJoined = m_list.rows().networks()[index.row()].isCurrentNetwork;
        return {SteadyListView::anyRowWidth, NetworkRowInMenu::height(option.font, isJoined)};
    }

private:
    MenuNetworkList& m_list;
};

bool isPress(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
}

} // namespace

MenuNetworkList::MenuNetworkList(QWidget* parent)
    : SteadyListView([](const WiFiNetwork& network,
                        bool) { return NetworkRowInMenu{.network = network}.accessibleText(); },
                     parent)
{
    setItemDelegate(new RowDelegate(*this));
    setSelectionMode(NoSelection);
    // One surface with the popover.
    viewport()->setAutoFillBackground(false);
}

bool MenuNetworkList::isFocused(const QModelIndex& row) const
{
    return m_usesKeys && hasFocus() && row == currentIndex();
}

void MenuNetworkList::setUsesKeys(bool uses)
{
    m_usesKeys = uses;
    viewport()->update();
}

void MenuNetworkList::requestConnect(const QModelIndex& row)
{
    if (row.isValid() && !rows().networks()[row.row()].isCurrentNetwork) {
        Q_EMIT connectRequested(rows().networks()[row.row()]);
    }
}

void MenuNetworkList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    // The first key shows where the keys are.
    if (!std::exchange(m_usesKeys, true)) {
        viewport()->update();
        scrollTo(currentIndex());
    } else if (isPress(*event)) {
        requestConnect(currentIndex());
    } else {
        SteadyListView::keyPressEvent(event);
    }
}

void MenuNetworkList::focusInEvent(QFocusEvent* event)
{
    SteadyListView::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
        setUsesKeys(true);
    }
}

void MenuNetworkList::hideEvent(QHideEvent* event)
{
    m_usesKeys = false;
    SteadyListView::hideEvent(event);
}

QModelIndex MenuNetworkList::buttonAt(const QPoint& position) const
{
    const QModelIndex row = indexAt(position);
    if (!row.isValid()) {
        return {};
    }
    const NetworkRowInMenu shown{.network = rows().networks()[row.row()]};
    const QRectF button = shown.layout(visualRect(row), font(), layoutDirection()).button();
    return button.contains(position) ? row : QModelIndex();
}

void MenuNetworkList::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        setUsesKeys(false);
        m_pressed = buttonAt(event->position().toPoint());
    }
}

void MenuNetworkList::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const QPersistentModelIndex pressed = std::exchange(m_pressed, {});
    if (pressed.isValid() && buttonAt(event->position().toPoint()) == pressed) {
        requestConnect(pressed);
    }
}

} // namespace aerolith
