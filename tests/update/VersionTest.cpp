#include "update/Version.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

TEST(Version, IsOrderedByNumber)
{
    // Each line is newer than the one above it; versions in one line are the same.
    const QList<QStringList> ascending{
        {u"0"_s, u"0.0"_s, u"00.0.000"_s},
        {u"0.9-alpha"_s, u"0.9.0-alpha"_s, u"0.9-alpha+7"_s},
        {u"0.9-alpha.1"_s, u"0.9-alpha.01"_s},
        {u"0.9-alpha.9"_s},
        {u"0.9-alpha.10"_s},
        {u"0.9-alpha.18446744073709551616"_s},
        {u"0.9-alpha.beta"_s},
        {u"0.9-beta"_s},
        {u"0.9-rc--1"_s},
        {u"0.9"_s, u"0.9.0.0"_s, u"0.09"_s, u"0.9+build-5.x"_s},
        {u"0.9.0.1"_s},
        {u"0.10"_s},
        {u"1.9"_s},
        {u"1.10"_s},
        {u"1.4294967296"_s},
        {u"1.18446744073709551616"_s},
        {u"1.18446744073709551617"_s, u"1.000000000000000000018446744073709551617"_s},
        {u"1."_s + u"9"_s.repeated(98)},
        {u"2"_s},
    };
    for (qsizetype i = 0; i < ascending.size(); ++i) {
        for (qsizetype j = 0; j < ascending.size(); ++j) {
            for (const QString& a : ascending[i]) {
                for (const QString& b : ascending[j]) {
                    SCOPED_TRACE((a + " and "_L1 + b).toStdString());
                    ASSERT_TRUE(Version::parse(a).has_value() && Version::parse(b).has_value());
                    EXPECT_TRUE((*Version::parse(a) <=> *Version::parse(b)) == (i <=> j));
                    EXPECT_EQ(*Version::parse(a) == *Version::parse(b), i == j);
                }
            }
        }
    }
}

TEST(Version, IsNothingElse)
{
    for (const QString& text : {QString(), u"v1.2"_s, u"1."_s, u".1"_s, u"1..2"_s, u"1.2 "_s, u"1.2rc1"_s,
                                u"1.2~1"_s, u"-1"_s, u"1-"_s, u"1-a..b"_s, u"1-ä"_s, u"1+"_s, u"1+a+b"_s,
                                u"\u0661.2"_s, u"1,2"_s, u"1."_s + u"9"_s.repeated(99)}) {
        EXPECT_FALSE(Version::parse(text)) << text.toStdString();
    }
}

} // namespace aerolith
