#pragma once

class QPainter;
class QPalette;
class QRect;

namespace aerolith {

/// Marks the control that has the keyboard's focus, the same around every control: not every style marks
/// small borderless ones. Within `control`.
void paintFocusRing(QPainter& painter, const QRect& control, const QPalette& palette);

} // namespace aerolith
