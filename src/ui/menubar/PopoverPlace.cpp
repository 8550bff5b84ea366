#include "ui/menubar/PopoverPlace.h"

#include <algorithm>

namespace aerolith {

namespace {

/// Towards the beginning where it does not fit at all.
int within(int wanted, int length, int first, int last)
{
    return std::max(first, std::min(wanted, last - length + 1));
}

} // namespace

QPoint popoverPlace(const QSize& size, const QRect& icon, const QRect& available)
{
    const int below = icon.bottom() + 1;
    const bool fitsBelow = below + size.height() <= available.bottom() + 1;
    const int top = fitsBelow ? below : icon.top() - size.height();
    return {within(icon.center().x() - size.width() / 2, size.width(), available.left(), available.right()),
            within(top, size.height(), available.top(), available.bottom())};
}

} // namespace aerolith
