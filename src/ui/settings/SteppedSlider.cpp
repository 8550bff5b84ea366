#include "ui/settings/SteppedSlider.h"

namespace aerolith {

SteppedSlider::SteppedSlider(int minimum, int maximum, int step, int value, QWidget* parent)
    : QSlider(Qt::Horizontal, parent)
{
    setRange(minimum, maximum);
    setSingleStep(step);
    setPageStep(step);
    setValue(value);
    // Told of every movement before it becomes the value.
    connect(this, &QSlider::actionTriggered, this,
            [this] { setSliderPosition(nearestStep(sliderPosition())); });
    connect(this, &QSlider::valueChanged, this, &SteppedSlider::stopAtStep);
}

int SteppedSlider::nearestStep(int value) const
{
    const int steps = (value - minimum() + singleStep() / 2) / singleStep();
    return minimum() + steps * singleStep();
}

void SteppedSlider::stopAtStep(int value)
{
    const int step = nearestStep(value);
    if (step == value) {
        Q_EMIT stepped(value);
    } else {
        setValue(step);
    }
}

} // namespace aerolith
