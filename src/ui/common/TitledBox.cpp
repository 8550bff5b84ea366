#include "ui/common/TitledBox.h"

#include "ui/common/SymbolView.h"
#include "ui/common/Theme.h"

#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace aerolith {

namespace {

constexpr int titleSymbolSize = 16;
constexpr int symbolSpacing = 6;
constexpr int titleSpacing = 8;
constexpr int boxPadding = 16;

} // namespace

TitledBox::TitledBox(const QString& title, int spacing, QWidget* parent)
    : QWidget(parent), m_heading(new QHBoxLayout), m_frame(new QGroupBox), m_rows(new QVBoxLayout(m_frame))
{
    auto* label = new QLabel(title);
    label->setTextFormat(Qt::PlainText);
    label->setFont(Theme::font(label->font(), TextStyle::headline));
    m_heading->setSpacing(symbolSpacing);
    m_heading->addWidget(label);
    m_heading->addStretch();

    m_frame->setAccessibleName(title);
    m_rows->setContentsMargins(boxPadding, boxPadding, boxPadding, boxPadding);
    m_rows->setSpacing(spacing);

    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins({});
    stack->setSpacing(titleSpacing);
    stack->addLayout(m_heading);
    stack->addWidget(m_frame);
}

void TitledBox::setSymbol(const QString& symbol)
{
    m_heading->insertWidget(0, new SymbolView(symbol, titleSymbolSize, SymbolView::Emphasis::primary));
}

} // namespace aerolith
