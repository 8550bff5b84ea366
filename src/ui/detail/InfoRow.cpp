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

InfoRow::InfoRow(const QString& label, const QString& value, QWidget* parent) : QWidget(parent)
{
    auto* labelView = new SecondaryLabel(textSize);
    labelView->setText(label);
    labelView->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    labelView->setWordWrap(true);
    labelView->setFixedWidth(Theme::scaledToText(labelWidth));
    auto* valueView = new SelectableText(textSize);
    valueView->setPlainText(value);
    valueView->setAccessibleName(label);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(spacing);
    row->addWidget(labelView, 0, Qt::AlignTop);
    row->addWidget(valueView, 1, Qt::AlignTop);
}

} // namespace aerolith
