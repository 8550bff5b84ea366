#pragma once

#include <QString>

#include <functional>

class QLayout;

namespace aerolith {

/// How a setting's value reads: "10s" beside the slider, "10 seconds" for who hears it.
struct ValueTexts
{
    QString shown;
    QString spoken;
};

/// A setting that is chosen by a slider.
struct SliderSetting
{
    QString objectName;
    QString title;
    int minimum = 0;
    int maximum = 0;
    int step = 1;
    /// What is stored, cut to a whole number. It may be out of the slider's reach.
    int value = 0;
    ValueTexts (*texts)(int value) = nullptr;
    /// The user has moved the slider.
    std::function<void(int value)> store;
};

/// Title, slider and value of a setting, for the layout of a view.
[[nodiscard]] QLayout* makeSliderBlock(const SliderSetting& setting);

} // namespace aerolith
