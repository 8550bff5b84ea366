#include "ui/common/StatusBarFrame.h"

#include "ui/common/Divider.h"
#include "ui/common/Theme.h"

#include <QGridLayout>

namespace aerolith {

namespace {

constexpr int statusBarHeight = 36;
constexpr int sidePadding = 12;

} // namespace

StatusBarFrame::StatusBarFrame(QWidget* parent) : QWidget(parent), m_row(new QHBoxLayout)
{
    setFixedHeight(Theme::scaledToText(statusBarHeight));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);

    auto* layers = new QGridLayout(this);
    layers->setContentsMargins({});
    layers->addLayout(m_row, 0, 0);
    layers->addWidget(new Divider(Qt::Horizontal), 0, 0, Qt::AlignTop);
    m_row->setContentsMargins(sidePadding - SymbolButton::margin, 0, sidePadding - SymbolButton::margin, 0);
}

SymbolButton* StatusBarFrame::makeButton(const QString& objectName, const QString& symbol,
                                         const QString& purpose)
{
    auto* button = new SymbolButton(symbol, purpose);
    button->setObjectName(objectName);
    button->setToolTip(purpose);
    return button;
}

} // namespace aerolith
