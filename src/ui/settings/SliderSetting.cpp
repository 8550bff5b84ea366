#include "ui/settings/SliderSetting.h"

#include "ui/common/SecondaryLabel.h"
#include "ui/common/Theme.h"
#include "ui/settings/SteppedSlider.h"

#include <QVBoxLayout>

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int blockSpacing = 8;
constexpr int valueWidth = 40;
constexpr int valueSize = 13;

SteppedSlider* makeSlider(const SliderSetting& setting)
{
    auto* slider = new SteppedSlider(setting.minimum, setting.maximum, setting.step, setting.value);
    slider->setObjectName(setting.objectName);
    slider->setAccessibleName(setting.title);
    return slider;
}

/// The value beside the slider, with room for any.
SecondaryLabel* makeValue(const SliderSetting& setting)
{
    auto* value = new SecondaryLabel(valueSize);
    value->setObjectName(setting.objectName + "Value"_L1);
    value->setAlignment(Qt::AlignCenter);
    const int widest = std::max(setting.maximum, setting.value);
    const int needed = value->fontMetrics().horizontalAdvance(setting.texts(widest).shown);
    value->setFixedWidth(std::max(valueWidth, needed));
    return value;
}

} // namespace

QLayout* makeSliderBlock(const SliderSetting& setting)
{
    auto* slider = makeSlider(setting);
    auto* shown = makeValue(setting);
    auto* title = new QLabel(setting.title);
    title->setFont(Theme::font(title->font(), TextStyle::subheadline));
    title->setBuddy(slider);

    const auto show = [slider, shown, texts = setting.texts](int value) {
        shown->setText(texts(value).shown);
        slider->setAccessibleDescription(texts(value).spoken);
    };
    show(setting.value);
    QObject::connect(slider, &SteppedSlider::stepped, slider, [show, store = setting.store](int value) {
        store(value);
        show(value);
    });

    auto* row = new QHBoxLayout;
    row->addWidget(slider);
    row->addWidget(shown);
    auto* block = new QVBoxLayout;
    block->setSpacing(blockSpacing);
    block->addWidget(title);
    block->addLayout(row);
    return block;
}

} // namespace aerolith
