#pragma once

#include <QToolButton>

namespace aerolith {

/// A borderless button that shows a symbol, tinted by the palette.
class SymbolButton : public QToolButton
{
public:
    /// Around the symbol, where it stands alone; device-independent pixels. What aligns the symbol with
    /// others leaves so much less space.
    static constexpr int margin = 4;

    /// `name` is what assistive technology says.
    SymbolButton(const QString& symbol, const QString& name, QWidget* parent = nullptr);

    /// Shows this title beside the symbol. As it stands: a "&" is no mnemonic.
    void setTitle(const QString& title);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void initStyleOption(QStyleOptionToolButton* option) const override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace aerolith
