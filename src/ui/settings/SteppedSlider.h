#pragma once

#include <QSlider>

namespace aerolith {

/// A horizontal slider that, moved by pointer, wheel or keys, stops only at whole steps from its minimum. A
/// value that is set, by the program or by assistive technology, may lie between them.
class SteppedSlider : public QSlider
{
public:
    SteppedSlider(int minimum, int maximum, int step, QWidget* parent = nullptr);

private:
    void stopAtStep();
};

} // namespace aerolith
