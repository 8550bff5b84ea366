#pragma once

#include <QSlider>

namespace aerolith {

/// A horizontal slider that, however it is moved, stops only at whole steps from its minimum. A value set by
/// the program may lie between them.
class SteppedSlider : public QSlider
{
public:
    SteppedSlider(int minimum, int maximum, int step, QWidget* parent = nullptr);

private:
    void stopAtStep();
};

} // namespace aerolith
