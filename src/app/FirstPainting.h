#pragma once

#include <functional>

class QObject;
class QWidget;

namespace aerolith {

/// Calls `task` once the window has been painted for the first time, on the next turn of the event loop; not
/// if the receiver has gone before. GUI thread.
void afterFirstPainting(QWidget& window, QObject& receiver, std::function<void()> task);

} // namespace aerolith
