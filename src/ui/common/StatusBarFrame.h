#pragma once

#include "ui/common/SymbolButton.h"

#include <QHBoxLayout>
#include <QWidget>

namespace aerolith {

/// The bar below a list or a pane: a row of small controls in the window's colour, a divider on top.
class StatusBarFrame : public QWidget
{
public:
    explicit StatusBarFrame(QWidget* parent = nullptr);

protected:
    /// Where the items stand, vertically centred.
    [[nodiscard]] QHBoxLayout& row() { return *m_row; }

    /// For the row; the purpose is its name and its tool tip.
    [[nodiscard]] static SymbolButton* makeButton(const QString& objectName, const QString& symbol,
                                                  const QString& purpose);

private:
    QHBoxLayout* m_row;
};

} // namespace aerolith
