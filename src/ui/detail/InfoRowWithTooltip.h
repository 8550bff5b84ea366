#pragma once

#include "ui/detail/NetworkDetails.h"

#include <QWidget>

class QLineEdit;

namespace aerolith {

class SecondaryLabel;
class SymbolView;

/// One fact as a row: its label, a small symbol that explains it while the pointer rests there, and the value
/// at the far edge.
///
/// The value can be selected and copied. No name, however wide, widens the pane: a value that is longer than
/// the row takes the keyboard's focus, and can be moved along with the arrow keys.
class InfoRowWithTooltip : public QWidget
{
    Q_OBJECT

public:
    explicit InfoRowWithTooltip(QWidget* parent = nullptr);

    void showDetail(const NetworkDetail& detail);

protected:
    void changeEvent(QEvent* event) override;

private:
    void alignValue();

    SecondaryLabel* m_label;
    SymbolView* m_symbol;
    QLineEdit* m_value;
};

} // namespace aerolith
