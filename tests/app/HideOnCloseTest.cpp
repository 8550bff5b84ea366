#include "app/HideOnClose.h"

#include "support/MainLoop.h"

#include <QDialog>
#include <QWidget>

#include <gtest/gtest.h>

namespace aerolith {

TEST(HideOnClose, KeepsTheWindowThatTheUserCanBringBackWithItsDialogs)
{
    QWidget window;
    bool comesBack = true;
    const HideOnClose hiding(window, [&] { return comesBack; });
    QDialog shown(&window);
    QDialog hidden(&window);
    auto* gone = new QDialog(&window);
    window.show();
    shown.show();
    gone->show();
    EXPECT_FALSE(window.close()) << "it is not closed";
    EXPECT_TRUE(window.isHidden());
    EXPECT_FALSE(shown.isVisible());
    delete gone;
    window.show();
    handleWaitingEvents();
    EXPECT_TRUE(shown.isVisible());
    EXPECT_FALSE(hidden.isVisible());

    comesBack = false;
    EXPECT_TRUE(window.close());
}

} // namespace aerolith
