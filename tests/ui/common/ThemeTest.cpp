#include "ui/common/Theme.h"

#include <gtest/gtest.h>

namespace aerolith {

TEST(Theme, SecondaryTextIsReadableOnEverySurfaceThatAllowsIt)
{
    const struct
    {
        const char* name;
        QColor text;
        QColor background;
    } surfaces[] = {
        {"black on white", {0, 0, 0}, {255, 255, 255}},
        {"black on light gray", {0, 0, 0}, {239, 239, 239}},
        {"soft black on gray", {0x31, 0x36, 0x3b}, {0xd6, 0xd6, 0xd6}},
        {"white on dark", {255, 255, 255}, {0x1b, 0x1e, 0x20}},
        {"light gray on gray", {0xd0, 0xd0, 0xd0}, {0x3a, 0x3a, 0x3a}},
        {"white on blue", {255, 255, 255}, {0, 88, 208}},
    };

    for (const auto& [name, text, background] : surfaces) {
        SCOPED_TRACE(name);
        const QColor secondary = Theme::secondary(text, background);
        EXPECT_GE(Theme::contrast(secondary, background), Theme::readableContrast);
        EXPECT_LT(Theme::contrast(secondary, background), Theme::contrast(text, background));
    }
    EXPECT_EQ(Theme::secondary(Qt::black, Qt::white), QColor(89, 89, 89)) << "65 % where that is enough";
    const QColor paleBlue(61, 174, 233);
    EXPECT_EQ(Theme::secondary(Qt::white, paleBlue), QColor(Qt::white)) << "as readable as there is";

    // What that is measured by is the contrast of the definition.
    EXPECT_NEAR(Theme::contrast(Qt::white, Qt::black), 21, 1e-9);
    EXPECT_NEAR(Theme::contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.005);
    EXPECT_NEAR(Theme::contrast(Qt::white, QColor(0x76, 0x76, 0x76)), 4.54, 0.005);
}

} // namespace aerolith
