#include "platform/Secret.h"

#include <gtest/gtest.h>

#include <sys/prctl.h>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;

TEST(Secret, IsOverwrittenWhereverItIsShared)
{
    const QString typed(5, u'x');
    QString shared;
    {
        const Secret secret(typed);
        shared = secret.text();
        EXPECT_EQ(shared, typed);
    }
    EXPECT_EQ(shared, QString(5, QChar::Null));
    EXPECT_EQ(typed, u"xxxxx"_s) << "the caller's own";

    QString literal = u"literal"_s;
    wipe(literal);
    EXPECT_TRUE(literal.isEmpty());
    EXPECT_EQ(u"literal"_s, "literal"_L1);
}

TEST(Secret, KeepsTheProcessOutOfCoreDumps)
{
    ASSERT_EQ(prctl(PR_GET_DUMPABLE), 1);
    {
        const Secret first(u"first"_s);
        {
            const Secret second(u"second"_s);
            EXPECT_EQ(prctl(PR_GET_DUMPABLE), 0);
        }
        EXPECT_EQ(prctl(PR_GET_DUMPABLE), 0) << "one is left";
    }
    EXPECT_EQ(prctl(PR_GET_DUMPABLE), 1);
}

} // namespace
} // namespace aerolith
