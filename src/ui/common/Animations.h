#pragma once

#include <QStyle>
#include <QWidget>

namespace aerolith {

/// Whether the user wants animations in this widget. GUI thread.
[[nodiscard]] inline bool hasAnimations(const QWidget& widget)
{
    return widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0;
}

} // namespace aerolith
