#include "plug/PluggedPlatform.h"

#include "support/RecordingLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace aerolith {

TEST(PluggedPlatform, LeavesTheUsersLoginAloneWhileItSimulates)
{
    const QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
    int argc = 0;
    const QCoreApplication application(argc, nullptr);

    RecordingLog log;
    const auto platform = plugPlatform(Simulation{}, log);
    ASSERT_TRUE(platform.ok());
    LoginItem& loginItem = platform.value()->desktopServices().loginItem;
    EXPECT_FALSE(loginItem.isEnabled());
    EXPECT_FALSE(loginItem.setEnabled(true));
    EXPECT_TRUE(loginItem.isEnabled());
    EXPECT_TRUE(QDir(config.path()).isEmpty());
}

} // namespace aerolith
