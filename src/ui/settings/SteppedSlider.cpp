#include "ui/settings/SteppedSlider.h"

namespace aerolith {

SteppedSlider::SteppedSlider(int minimum, int maximum, int step, QWidget* parent)
    : QSlider(Qt::Horizontal, parent)
{
    setRange(minimum, maximum);
    setSingleStep(step);
    setPageStep(step);
    // Told of every movement before it becomes the value.
    connect(this, &QSlider::actionTriggered, this, &SteppedSlider::stopAtStep);
}

void SteppedSlider::stopAtStep()
{
    const int steps = (sliderPosition() - minimum() + singleStep() / 2) / singleStep();
    setSliderPosition(minimum() + steps * singleStep());
}

} // namespace aerolith
