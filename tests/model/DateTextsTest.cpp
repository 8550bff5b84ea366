#include "model/DateTexts.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace aerolith;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

/// 2026-11-16 18:21:48 in New York.
constexpr TimePoint evening{std::chrono::seconds(1'794'871'308)};

DateTexts textsIn(const char* locale, const char* zone = "America/New_York")
{
    return DateTexts({.collation = locale, .time = locale, .timeZone = zone});
}

} // namespace

TEST(DateTexts, FollowTheLocaleAndTheTimeZone)
{
    EXPECT_EQ(textsIn("en_US").mediumDateTime(evening), u"Nov 16, 2026 at 6:21:48 PM"_s);
    EXPECT_EQ(textsIn("en_US").mediumTime(evening), u"6:21:48 PM"_s);
    EXPECT_EQ(textsIn("de_DE", "Europe/Berlin").mediumDateTime(evening), u"17.11.2026 um 00:21:48"_s);
    EXPECT_EQ(textsIn("ja_JP", "Asia/Tokyo").mediumTime(evening), u"8:21:48"_s);
    EXPECT_EQ(textsIn("xx_nowhere", "No/Zone").mediumTime(evening).isEmpty(), false);
}

TEST(DateTexts, HoldNoSpecialBlanks)
{
    for (const char* locale : {"en_US", "fr_FR", "es_ES", "fi_FI", "bg_BG"}) {
        const QString text = textsIn(locale).mediumDateTime(evening);
        EXPECT_FALSE(text.contains(QChar(0x202f)) || text.contains(QChar(0x00a0))) << locale;
    }
}

TEST(DateTexts, RelativePhrasesUseTheLargestWholeUnit)
{
    const DateTexts texts = textsIn("en_US");
    EXPECT_EQ(texts.relative(evening, evening), u"0 sec. ago"_s);
    EXPECT_EQ(texts.relative(evening, evening + 12s), u"12 sec. ago"_s);
    EXPECT_EQ(texts.relative(evening, evening + 119s), u"1 min. ago"_s);
    EXPECT_EQ(texts.relative(evening, evening + 2h), u"2 hr. ago"_s);
    EXPECT_EQ(texts.relative(evening, evening + 24h), u"1 day ago"_s);
    EXPECT_EQ(texts.relative(evening + 3min, evening), u"in 3 min."_s);
    EXPECT_EQ(textsIn("de_DE").relative(evening, evening + 12s), u"vor 12 Sek."_s);
}
