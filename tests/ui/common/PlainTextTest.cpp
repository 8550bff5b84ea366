#include "ui/common/PlainText.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

TEST(SingleLine, KeepsNamesAsTheyAre)
{
    for (const QString& name :
         {u"Zoë & Max"_s, u"<b>Free</b> &amp; %1 %s"_s, u"  two  blanks "_s, u"مقهى\u200Cنت\u200F"_s,
          u"👨\u200D👩\u200D👧 home"_s, u"e\u0301\u0301\u0301"_s}) {
        EXPECT_EQ(singleLine(name), name);
    }
}

TEST(SingleLine, ShowsWhatWouldDisturbTheLine)
{
    EXPECT_EQ(singleLine(u"a\nb\r\tc\u0000\u001B[2J"_s), u"a\uFFFDb\uFFFD\uFFFDc\uFFFD\uFFFD[2J"_s);
    EXPECT_EQ(singleLine(u"a\u007Fb"_s), u"a\uFFFDb"_s);
    // C1 controls: NEL breaks lines, and ST parts the variants of an elided text.
    EXPECT_EQ(singleLine(u"a\u0085b\u009Cc"_s), u"a\uFFFDb\uFFFDc"_s);
    EXPECT_EQ(singleLine(u"a\u2028b\u2029c"_s), u"a\uFFFDb\uFFFDc"_s);
    for (char16_t control : u"\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069"_s.toStdU16String()) {
        EXPECT_EQ(singleLine(u"x"_s + QChar(control)), u"x\uFFFD"_s);
    }
}

} // namespace aerolith
