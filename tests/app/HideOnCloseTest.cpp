#include "app/HideOnClose.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace aerolith {

TEST(HideOnClose, KeepsTheWindowThatTheUserCanBringBack)
{
    QWidget window;
    bool comesBack = true;
    const HideOnClose hiding(window, [&] { return comesBack; });
    window.show();
    EXPECT_FALSE(window.close()) << "it is not closed";
    EXPECT_TRUE(window.isHidden());
    window.show();
    comesBack = false;
    EXPECT_TRUE(window.close());
}

} // namespace aerolith
