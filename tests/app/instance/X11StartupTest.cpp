#include "app/instance/X11Startup.h"

#include <QList>

#include <gtest/gtest.h>

#include <utility>

namespace aerolith {

TEST(X11Startup, ReadsWhenTheUserAskedForIt)
{
    const QList<std::pair<QByteArray, std::optional<xcb_timestamp_t>>> starts{
        {"gnome-shell/Aerolith/1234-5-desktop_TIME4294967295", 4294967295U},
        {"a_TIME1_b_TIME22", 22U},
        {"", {}},
        {"launcher-1", {}},
        {"launcher_TIME", {}},
        {"launcher_TIME0", {}},
        {"launcher_TIME-5", {}},
        {"launcher_TIME12s", {}},
        {"launcher_TIME4294967296", {}},
    };

    for (const auto& [startupId, time] : starts) {
        EXPECT_EQ(x11::launchTime(startupId), time) << startupId.constData();
    }
}

} // namespace aerolith
