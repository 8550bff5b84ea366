#pragma once

#include <QToolButton>

namespace aerolith {

/// A borderless button that shows a symbol, tinted by the palette.
class SymbolButton : public QToolButton
{
public:
    /// `name` is what assistive technology says.
    SymbolButton(const QString& symbol, const QString& name, QWidget* parent = nullptr);

    /// Shows this title beside the symbol. As it stands: a "&" is no mnemonic.
    void setTitle(const QString& title);

protected:
    void initStyleOption(QStyleOptionToolButton* option) const override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace aerolith
