#include "ui/detail/InfoRow.h"

#include "ui/common/SecondaryLabel.h"
#include "ui/common/SelectableText.h"
#include "ui/common/Theme.h"

#include <QHBoxLayout>

namespace aerolith {

namespace {

constexpr int labelWidth = 120;
constexpr int spacing = 8;
constexpr int textSize = 13;

} // namespace

InfoRow::InfoRow(QWidget* parent)
    : QWidget(parent), m_label(new SecondaryLabel(textSize)), m_value(new SelectableText(textSize))
{
    m_label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    m_label->setWordWrap(true);
    m_label->setFixedWidth(Theme::scaledToText(labelWidth));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(spacing);
    row->addWidget(m_label, 0, Qt::AlignTop);
    row->addWidget(m_value, 1, Qt::AlignTop);
}

void InfoRow::showFact(const InterfaceFact& fact)
{
    m_label->setText(fact.label);
    m_value->setAccessibleName(fact.label);
    // An equal text stays as it is: the user may have selected a part of it.
    if (fact.value != m_fact.value) {
        m_value->setPlainText(fact.value);
        m_value->updateGeometry();
    }
    m_fact = fact;
}

} // namespace aerolith
