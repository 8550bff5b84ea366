#pragma once

#include "ui/common/VisibleClock.h"

#include <QWidget>

namespace aerolith {

/// Says that something is under way, for how long nobody knows. Turns only while it can be seen.
class Spinner : public QWidget
{
public:
    explicit Spinner(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    VisibleClock m_clock;
};

} // namespace aerolith
