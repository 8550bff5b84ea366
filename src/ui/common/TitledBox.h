#pragma once

#include <QWidget>

class QGroupBox;
class QHBoxLayout;
class QVBoxLayout;

namespace aerolith {

/// Rows in a frame below their title.
class TitledBox : public QWidget
{
public:
    /// `spacing`, the distance between rows, in device-independent pixels.
    TitledBox(const QString& title, int spacing, QWidget* parent = nullptr);

    /// Before the title.
    void setSymbol(const QString& symbol);

    [[nodiscard]] QVBoxLayout& rows() { return *m_rows; }

private:
    QHBoxLayout* m_heading;
    QGroupBox* m_frame;
    QVBoxLayout* m_rows;
};

} // namespace aerolith
