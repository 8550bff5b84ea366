#include "ui/detail/DetailSection.h"

#include "ui/common/AccessibleRole.h"
#include "ui/common/Theme.h"
#include "ui/detail/InfoRowWithTooltip.h"

#include <QLabel>
#include <QVBoxLayout>

namespace aerolith {

namespace {

constexpr int titleSpacing = 6;

QLabel* makeTitle(const QString& text)
{
    auto* title = new QLabel(text);
    title->setTextFormat(Qt::PlainText);
    title->setFont(Theme::font(title->font(), TextStyle::headline));
    title->setContentsMargins(DetailSection::sidePadding, 0, DetailSection::sidePadding, titleSpacing);
    return title;
}

} // namespace

DetailSection::DetailSection(const QString& title, QWidget* parent)
    : QWidget(parent), m_stack(new QVBoxLayout(this)), m_rowStack(new QVBoxLayout)
{
    setAccessibleRole(*this, QAccessible::Grouping);
    setAccessibleName(title);
    m_stack->setContentsMargins({});
    m_stack->setSpacing(0);
    // As wide as its text: in a wider place it would stand where its own direction begins, not the section's.
    m_stack->addWidget(makeTitle(title), 0, Qt::AlignLeft);
    m_stack->addLayout(m_rowStack);
    m_rowStack->setContentsMargins(sidePadding, 0, sidePadding, 0);
}

void DetailSection::setHeader(QWidget* header)
{
    m_stack->insertWidget(1, header);
}

void DetailSection::showDetails(const NetworkDetailList& details)
{
    while (m_rows.size() < details.size()) {
        m_rows.append(new InfoRowWithTooltip);
        m_rowStack->addWidget(m_rows.last());
    }
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        m_rows[i]->setVisible(i < details.size());
        if (i < details.size()) {
            m_rows[i]->showDetail(details[i]);
        }
    }
}

} // namespace aerolith
