#include "app/HideOnClose.h"

#include "support/MainLoop.h"

#include <QDialog>
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

TEST(HideOnClose, TakesTheWindowsDialogsAlong)
{
    QWidget window;
    const HideOnClose hiding(window, [] { return true; });
    QDialog shown(&window);
    QDialog hidden(&window);
    auto* gone = new QDialog(&window);
    window.show();
    shown.show();
    gone->show();
    window.close();
    EXPECT_FALSE(shown.isVisible());
    delete gone;
    window.show();
    handleWaitingEvents();
    EXPECT_TRUE(shown.isVisible());
    EXPECT_FALSE(hidden.isVisible());
}

} // namespace aerolith
