#include "ui/main/ToolBar.h"

#include <QStyleOptionToolBar>
#include <QStylePainter>

namespace aerolith {

namespace {

constexpr int barHeight = 32;
constexpr int toolBarPadding = 4;

} // namespace

ToolBar::ToolBar(QWidget* parent) : QWidget(parent), m_row(new QHBoxLayout(this))
{
    setFixedHeight(barHeight);
    m_row->setContentsMargins(toolBarPadding, 0, toolBarPadding, 0);
    m_row->setSpacing(0);
}

void ToolBar::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionToolBar option;
    option.initFrom(this);
    option.toolBarArea = Qt::TopToolBarArea;
    painter.drawControl(QStyle::CE_ToolBar, option);
}

} // namespace aerolith
