#include "ui/common/StatusBarFrame.h"

#include "ui/common/Divider.h"

#include <QVBoxLayout>

namespace aerolith {

namespace {

constexpr int barHeight = 36;
constexpr int sidePadding = 12;

} // namespace

StatusBarFrame::StatusBarFrame(QWidget* parent) : QWidget(parent), m_row(new QHBoxLayout)
{
    setMinimumHeight(barHeight);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(new Divider(Qt::Horizontal));
    column->addLayout(m_row);
    m_row->setContentsMargins(sidePadding, 0, sidePadding, 0);
}

} // namespace aerolith
