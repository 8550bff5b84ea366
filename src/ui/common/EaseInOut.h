#pragma once

class QEasingCurve;

namespace aerolith {

/// How every movement of the program begins and ends: slowly, with no speed at either end.
[[nodiscard]] const QEasingCurve& easeInOut();

} // namespace aerolith
