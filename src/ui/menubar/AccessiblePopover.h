#pragma once

namespace aerolith {

/// Lets assistive technology find open popovers beside the program's other windows. Qt keeps popups out of
/// the accessibility tree, as menus announce themselves entry by entry; a popover is to be explored like a
/// window. Once, after the QApplication and before its first window. Main thread.
void listPopoversAsWindows();

} // namespace aerolith
