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
        {0, 0, 320, 1.0, 1},
        {0, 502.5, 320, 0.85, 0},
        // Slow at both ends: the curve's value at a quarter of the way.
        {3, 1.525, 440, 1.15 - 0.15 * 0.1292, 1 - 0.1292},
        {0, 4.375, 320, 1.0 - 0.15 * 0.1292, 1 - 0.1292},
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
    const std::pair<double, double> cases[] = {{0.375, 0.95 + 0.15 * 0.1292}, {3001.5, 1.1}};
    for (const auto& [seconds, scale] : cases) {
        EXPECT_NEAR(symbolScale(Seconds(seconds)), scale, 0.0005) << seconds;
    }
}

} // namespace aerolith::BackdropMotion
