#pragma once

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

private:
    QHBoxLayout* m_row;
};

} // namespace aerolith
