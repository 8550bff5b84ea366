#include "ui/common/OncePerTurn.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <optional>

namespace aerolith {

TEST(OncePerTurn, RunsOnceForManyRequestsAndNoMoreOnceItIsGone)
{
    int runs = 0;
    std::optional<OncePerTurn> update(std::in_place, [&] { ++runs; });
    for (const int expected : {1, 2}) {
        update->request();
        update->request();
        EXPECT_EQ(runs, expected - 1) << "on a later turn";
        QCoreApplication::processEvents();
        EXPECT_EQ(runs, expected);
    }
    update->request();
    update.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(runs, 2);
}

} // namespace aerolith
