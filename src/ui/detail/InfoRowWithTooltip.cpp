#include "ui/detail/InfoRowWithTooltip.h"

#include "ui/common/PlainText.h"
#include "ui/common/SecondaryLabel.h"
#include "ui/common/SymbolView.h"
#include "ui/common/Theme.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int symbolSize = 10;
constexpr int padding = 2;
/// That a text field keeps around its text; taken back, so that values end where the chart does.
constexpr int fieldPadding = 2;

class ValueField : public QLineEdit
{
public:
    ValueField()
    {
        setReadOnly(true);
        setFrame(false);
        setTextMargins(-fieldPadding, 0, -fieldPadding, 0);
        connect(this, &QLineEdit::textChanged, this, &ValueField::takeFocusIfCutOff);
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QLineEdit::resizeEvent(event);
        takeFocusIfCutOff();
    }

private:
    void takeFocusIfCutOff()
    {
        const bool isCutOff = fontMetrics().horizontalAdvance(text()) > width();
        setFocusPolicy(isCutOff ? Qt::StrongFocus : Qt::ClickFocus);
    }
};

} // namespace

InfoRowWithTooltip::InfoRowWithTooltip(QWidget* parent)
    : QWidget(parent)
    , m_label(new SecondaryLabel(TextStyle::body))
    , m_symbol(new SymbolView(u"info.circle"_s, symbolSize, SymbolView::Emphasis::secondary))
    , m_value(new ValueField)
{
    m_value->setFont(Theme::font(m_value->font(), TextStyle::body));
    alignValue();

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, padding, 0, padding);
    row->addWidget(m_label);
    row->addWidget(m_symbol);
    row->addWidget(m_value, 1);
}

void InfoRowWithTooltip::showDetail(const NetworkDetail& detail)
{
    if (objectName() != detail.name) {
        setObjectName(detail.name);
        m_label->setObjectName(detail.name + "Label"_L1);
        m_label->setText(detail.label);
        m_symbol->setObjectName(detail.name + "Symbol"_L1);
        m_symbol->setToolTip(detail.tooltip);
        m_value->setObjectName(detail.name + "Value"_L1);
        m_value->setAccessibleName(detail.label);
        m_value->setAccessibleDescription(detail.tooltip);
    }
    // An equal text stays as it is: the user may have selected a part of it.
    if (const QString value = singleLine(detail.value); value != m_value->text()) {
        m_value->setText(value);
        m_value->setCursorPosition(0);
    }
}

void InfoRowWithTooltip::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        alignValue();
    }
    QWidget::changeEvent(event);
}

/// At the far edge of the row, whatever direction the value itself has.
void InfoRowWithTooltip::alignValue()
{
    m_value->setAlignment((isRightToLeft() ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignAbsolute |
                          Qt::AlignVCenter);
}

} // namespace aerolith
