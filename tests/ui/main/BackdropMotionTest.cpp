#include "ui/main/BackdropMotion.h"

#include <gtest/gtest.h>

namespace aerolith::BackdropMotion {

TEST(BackdropMotion, RingsShrinkAndFadeOneAfterTheOther)
{
    struct
    {
        int index;
        double seconds;
        double diameter;
        double scale;
        double opacity;
    } const cases[] = {
        {0, 0.0, 320, 1.0, 1},
        {0, 1.25, 320, 0.925, 0.5},
        {0, 2.5, 320, 0.85, 0},
        {0, 5.0, 320, 1.0, 1},
        {0, 502.5, 320, 0.85, 0},
        {1, 0.3, 360, 1.05, 1},
        {1, 2.8, 360, 0.9, 0},
        {2, 3.1, 400, 0.95, 0},
        {3, 0.9, 440, 1.15, 1},
        {3, 3.4, 440, 1.0, 0},
        {3, 5.9, 440, 1.15, 1},
        // Slow at first: the curve's value at a quarter of the way.
        {0, 0.625, 320, 1.0 - 0.15 * 0.1292, 1 - 0.1292},
    };

    for (const auto& [index, seconds, diameter, scale, opacity] : cases) {
        SCOPED_TRACE(testing::Message() << "ring " << index << " at " << seconds);
        const Ring now = ring(index, Seconds(seconds));
        EXPECT_EQ(now.diameter, diameter);
        EXPECT_NEAR(now.scale, scale, 0.0005);
        EXPECT_NEAR(now.opacity, opacity, 0.003);
    }
}

TEST(BackdropMotion, TheSymbolSwellsAndComesBack)
{
    const std::pair<double, double> cases[] = {{0, 0.95},   {0.75, 1.025}, {1.5, 1.1},
                                               {3.0, 0.95}, {3.75, 1.025}, {3001.5, 1.1}};
    for (const auto& [seconds, scale] : cases) {
        EXPECT_NEAR(symbolScale(Seconds(seconds)), scale, 0.0005) << seconds;
    }
}

} // namespace aerolith::BackdropMotion
