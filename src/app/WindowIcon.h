#pragma once

class QWidget;

namespace aerolith {

/// Gives the program's windows their icon once `window` has been painted: an icon is drawn in every size that
/// a desktop may ask for, which is a sixth of a start. GUI thread.
void setWindowIconOnceShown(QWidget& window);

} // namespace aerolith
