#include "ui/common/Theme.h"

#include <gtest/gtest.h>

namespace aerolith {

TEST(Theme, SecondaryTextIsReadableOnEverySurfaceThatAllowsIt)
{
    const std::pair<QColor, QColor> surfaces[] = {
        {{0x31, 0x36, 0x3b}, {0xd6, 0xd6, 0xd6}},
        {{255, 255, 255}, {0x1b, 0x1e, 0x20}},
        {{0xd0, 0xd0, 0xd0}, {0x3a, 0x3a, 0x3a}},
        {{255, 255, 255}, {0, 88, 208}},
    };
    for (const auto& [text, background] : surfaces) {
        SCOPED_TRACE(background.name().toStdString());
        const QColor secondary = Theme::secondary(text, background);
        EXPECT_GE(Theme::contrast(secondary, background), Theme::readableContrast);
        EXPECT_LT(Theme::contrast(secondary, background), Theme::contrast(text, background));
    }
    const QColor paleBlue(61, 174, 233);
    EXPECT_EQ(Theme::secondary(Qt::white, paleBlue), QColor(Qt::white)) << "as readable as there is";

    // What that is measured by is the contrast of the definition.
    EXPECT_NEAR(Theme::contrast(Qt::white, Qt::black), 21, 1e-9);
    EXPECT_NEAR(Theme::contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.005);
}

} // namespace aerolith
