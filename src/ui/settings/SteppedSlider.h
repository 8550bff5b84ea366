#pragma once

#include <QSlider>

namespace aerolith {

/// A horizontal slider that, whoever moves it, stops only at whole steps from its minimum: pointer, wheel,
/// keys, or assistive technology, which sets a value. Until then it stands where it began, between two steps
/// or not.
class SteppedSlider : public QSlider
{
    Q_OBJECT

public:
    SteppedSlider(int minimum, int maximum, int step, int value, QWidget* parent = nullptr);

Q_SIGNALS:
    /// It has been moved to a step.
    void stepped(int value);

private:
    [[nodiscard]] int nearestStep(int value) const;
    void stopAtStep(int value);
};

} // namespace aerolith
