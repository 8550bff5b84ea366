#pragma once

#include <QWidget>

namespace aerolith {

/// One symbol in a square of its own, in the palette's text colour or, as secondary, a quieter one.
class SymbolView : public QWidget
{
public:
    enum class Emphasis
    {
        primary,
        secondary
    };

    /// `size` in device-independent pixels.
    SymbolView(QString symbol, int size, Emphasis emphasis, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_symbol;
    Emphasis m_emphasis;
};

} // namespace aerolith
