#include "ui/common/SymbolButton.h"

#include "ui/common/FocusRing.h"
#include "ui/common/SymbolIcon.h"

#include <QPainter>
#include <QStyleOptionToolButton>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize symbolSize{16, 16};

} // namespace

SymbolButton::SymbolButton(const QString& symbol, const QString& name, QWidget* parent) : QToolButton(parent)
{
    setAutoRaise(true);
    setIcon(symbolIcon(symbol, *this));
    setIconSize(symbolSize);
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
}

void SymbolButton::setTitle(const QString& title)
{
    setText(QString(title).replace(u'&', "&&"_L1));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

QSize SymbolButton::sizeHint() const
{
    return text().isEmpty() ? iconSize().grownBy({margin, margin, margin, margin}) : QToolButton::sizeHint();
}

/// The focus is marked by a ring alone.
void SymbolButton::initStyleOption(QStyleOptionToolButton* option) const
{
    QToolButton::initStyleOption(option);
    option->state.setFlag(QStyle::State_HasFocus, false);
}

void SymbolButton::paintEvent(QPaintEvent* event)
{
    QToolButton::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        paintFocusRing(painter, rect(), palette());
    }
}

} // namespace aerolith
