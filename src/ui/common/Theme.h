#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QSize>

/// Colours and fonts of the views, all derived from the user's own palette and font. The palette is the one
/// of the widget that is drawn, so that light, dark and a change between them are followed.
namespace aerolith {

/// What a text is in its view. Body is what the others are measured by.
enum class TextStyle
{
    headline,
    body,
    subheadline,
    caption,
    caption2
};

} // namespace aerolith

namespace aerolith::Theme {

/// Contrast that small text needs to be read, as the ratio defined by WCAG.
inline constexpr double readableContrast = 4.5;

[[nodiscard]] bool isDark(const QPalette& palette);

[[nodiscard]] QColor accent(const QPalette& palette);

/// Neutral, the same in light and dark.
[[nodiscard]] QColor gray();

[[nodiscard]] QColor green(const QPalette& palette);

[[nodiscard]] QColor blue(const QPalette& palette);

[[nodiscard]] QColor red(const QPalette& palette);

/// The text colour at an opacity of 65 % over `background`, or at the lowest one above it that is readable
/// there; the full text colour where even that is not. Opaque.
[[nodiscard]] QColor secondary(const QColor& text, const QColor& background);

[[nodiscard]] QColor withOpacity(QColor color, double opacity);

/// What is seen when `color` is laid over the opaque `background` at `opacity`.
[[nodiscard]] QColor blended(const QColor& color, const QColor& background, double opacity);

/// From 1, no difference, to 21, black on white. Both opaque.
[[nodiscard]] double contrast(const QColor& a, const QColor& b);

/// How many times as large as usual the desktop's text is, where it is larger than any desktop's own default;
/// else 1. What is given in pixels grows with it: fonts, and what has to hold text.
[[nodiscard]] double textScale();

[[nodiscard]] int scaledToText(int length);

[[nodiscard]] QSize scaledToText(const QSize& size);

/// The user's family at a size in device-independent pixels, times `textScale()`.
[[nodiscard]] QFont font(const QFont& base, int pixelSize, QFont::Weight weight = QFont::Normal);

/// The user's family in a text style.
[[nodiscard]] QFont font(const QFont& base, TextStyle style);

} // namespace aerolith::Theme
