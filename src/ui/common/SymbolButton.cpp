#include "ui/common/SymbolButton.h"

#include "ui/common/SymbolIcon.h"

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

} // namespace aerolith
