#include "ui/menubar/PopoverPlace.h"

#include <gtest/gtest.h>

namespace aerolith {

TEST(PopoverPlace, IsByTheIconAndOnTheScreen)
{
    // A second screen to the right of the first, with bars above and below.
    const QRect available(1280, 30, 1000, 800);
    const QSize size(302, 402);

    const struct
    {
        const char* icon;
        QRect rect;
        QPoint place;
    } places[] = {
        {"in a bar above", {1700, 0, 22, 30}, {1559, 30}},
        {"in a bar above, at its end", {2250, 0, 22, 30}, {1978, 30}},
        {"in a bar above, at its beginning", {1280, 0, 22, 30}, {1280, 30}},
        {"in a bar below", {1700, 830, 22, 30}, {1559, 428}},
        {"in a bar at the left", {1290, 700, 22, 22}, {1280, 298}},
        {"pressed somewhere", {1800, 100, 1, 1}, {1649, 101}},
    };

    for (const auto& [icon, rect, place] : places) {
        EXPECT_EQ(popoverPlace(size, rect, available), place) << icon;
    }
    EXPECT_EQ(popoverPlace(size, {50, 0, 22, 20}, {0, 20, 200, 300}), QPoint(0, 20)) << "a tiny screen";
}

} // namespace aerolith
