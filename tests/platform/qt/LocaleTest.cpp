#include "platform/qt/Locale.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace aerolith;
using namespace Qt::StringLiterals;

namespace {

class LocaleTest : public testing::Test
{
protected:
    void SetUp() override { clear(); }

    void TearDown() override { clear(); }

private:
    static void clear()
    {
        for (const char* variable : {"LC_ALL", "LC_COLLATE", "LC_MESSAGES", "LC_TIME", "LANG", "LANGUAGE"}) {
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

TEST_F(LocaleTest, ReadsTheLanguagesOfMessages)
{
    EXPECT_EQ(messageLanguages(), QStringList());
    qputenv("LANGUAGE", "sv:de_AT.UTF-8");
    EXPECT_EQ(messageLanguages(), QStringList()) << "counts in no locale but another than C";
    qputenv("LANG", "fr_FR.UTF-8");
    EXPECT_EQ(messageLanguages(), QStringList({u"sv"_s, u"de_AT"_s}));
    qputenv("LANGUAGE", "");
    EXPECT_EQ(messageLanguages(), QStringList(u"fr_FR"_s));
    qputenv("LC_MESSAGES", "ja_JP.UTF-8");
    EXPECT_EQ(messageLanguages(), QStringList(u"ja_JP"_s));
    qputenv("LC_ALL", "C.UTF-8");
    EXPECT_EQ(messageLanguages(), QStringList());
}
