#pragma once

#include <QWidget>

namespace aerolith {

/// A hairline between parts of a view.
class Divider : public QWidget
{
public:
    explicit Divider(Qt::Orientation orientation, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace aerolith
