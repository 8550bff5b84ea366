#pragma once

#include "ui/detail/InterfaceSnapshot.h"

#include <QWidget>

namespace aerolith {

class SecondaryLabel;
class SelectableText;

/// A label and, beside it, a value that wraps wherever it must and can be selected and copied by pointer and
/// keys. Both are plain text.
class InfoRow : public QWidget
{
public:
    explicit InfoRow(QWidget* parent = nullptr);

    void showFact(const InterfaceFact& fact);

private:
    SecondaryLabel* m_label;
    SelectableText* m_value;
    InterfaceFact m_fact;
};

} // namespace aerolith
