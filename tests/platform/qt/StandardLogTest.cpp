#include "platform/qt/StandardLog.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace aerolith;
using namespace Qt::StringLiterals;

TEST(StandardLog, KeepsHostileNamesOnTheirLine)
{
    EXPECT_EQ(escapedForLog(u"\u202eabc\u2066\u2028\u0085\u007f"_s),
              u"\\u{202e}abc\\u{2066}\\u{2028}\\u{85}\\u{7f}"_s);
    EXPECT_EQ(escapedForLog(u"Caf\u00e9 \U0001f375 100 % \\ \"q\""_s),
              u"Caf\u00e9 \U0001f375 100 % \\ \"q\""_s);
}
