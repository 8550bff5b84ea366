#pragma once

#include <QRect>

namespace aerolith {

/// Where a popover of `size` opens for an icon: below it and centred, above it where there is no room below,
/// and always within `available`, the part of the screen that is not the desktop's own. Device-independent
/// pixels.
[[nodiscard]] QPoint popoverPlace(const QSize& size, const QRect& icon, const QRect& available);

} // namespace aerolith
