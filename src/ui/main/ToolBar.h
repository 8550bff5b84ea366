#pragma once

#include <QHBoxLayout>
#include <QWidget>

namespace aerolith {

/// The row of buttons over the window's content, in the style's own look. Not a QToolBar: that one brings a
/// menu for buttons that find no room, whose icon alone loads every image format that Qt knows before the
/// first window is painted.
class ToolBar : public QWidget
{
    Q_OBJECT

public:
    explicit ToolBar(QWidget* parent = nullptr);

    [[nodiscard]] QHBoxLayout& row() { return *m_row; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QHBoxLayout* m_row;
};

} // namespace aerolith
