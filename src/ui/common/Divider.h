#pragma once

#include <QWidget>

namespace aerolith {

/// A hairline between parts of a view.
class Divider : public QWidget
{
public:
    explicit Divider(Qt::Orientation orientation, QWidget* parent = nullptr);

    /// For a view that has a place of its own for it.
    static void paint(QPainter& painter, const QRect& rect);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace aerolith
