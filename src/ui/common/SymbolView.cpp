#include "ui/common/SymbolView.h"

#include "ui/common/Symbols.h"
#include "ui/common/Theme.h"

#include <QPainter>

#include <utility>

namespace aerolith {

SymbolView::SymbolView(QString symbol, int size, Emphasis emphasis, QWidget* parent)
    : QWidget(parent), m_symbol(std::move(symbol)), m_emphasis(emphasis)
{
    setFixedSize(size, size);
}

void SymbolView::paintEvent(QPaintEvent*)
{
    const QColor text = palette().color(foregroundRole());
    const QColor background = palette().color(backgroundRole());
    QPainter painter(this);
    Symbols::paint(painter, rect(), m_symbol,
                   m_emphasis == Emphasis::secondary ? Theme::secondary(text, background) : text);
}

} // namespace aerolith
