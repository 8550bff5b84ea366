#include "platform/qt/Locale.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace aerolith;

namespace {

class LocaleTest : public testing::Test
{
protected:
    void SetUp() override { clear(); }

    void TearDown() override { clear(); }

private:
    static void clear()
    {
        for (const char* variable : {"LC_ALL", "LC_COLLATE", "LC_TIME", "LANG"}) {
            qunsetenv(variable);
        }
    }
};

} // namespace

TEST_F(LocaleTest, FollowsTheEnvironmentsPrecedence)
{
    EXPECT_EQ(environmentLocale().time, "en_US");
    qputenv("LANG", "de_DE.UTF-8");
    qputenv("LC_TIME", "sv_SE.UTF-8@euro");
    EXPECT_EQ(environmentLocale().collation, "de_DE");
    EXPECT_EQ(environmentLocale().time, "sv_SE");
    qputenv("LC_ALL", "C.UTF-8");
    EXPECT_EQ(environmentLocale().collation, "en_US");
    EXPECT_FALSE(environmentLocale().timeZone.isEmpty());
}
