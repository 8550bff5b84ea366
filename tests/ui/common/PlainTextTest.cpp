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
    // Of the C1 controls, NEL breaks lines, and ST parts the variants of an elided text.
    const QString disturbing = u"\u0000\t\n\r\u001B\u007F\u0085\u009C\u2028\u2029"
                               "\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069"_s;
    for (const QChar control : disturbing) {
        EXPECT_EQ(singleLine(u"x"_s + control + u"[2J"_s), u"x\uFFFD[2J"_s) << int(control.unicode());
    }
}

} // namespace aerolith
