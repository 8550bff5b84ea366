#include "ui/common/OncePerTurn.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace aerolith {

TEST(OncePerTurn, RunsOnceForManyRequestsAndAgainForTheNext)
{
    int runs = 0;
    OncePerTurn update([&] { ++runs; });
    update.request();
    update.request();
    EXPECT_EQ(runs, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(runs, 1);

    update.request();
    QCoreApplication::processEvents();
    EXPECT_EQ(runs, 2);
}

TEST(OncePerTurn, RunsNoMoreOnceItIsGone)
{
    int runs = 0;
    {
        OncePerTurn update([&] { ++runs; });
        update.request();
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(runs, 0);
}

} // namespace aerolith
