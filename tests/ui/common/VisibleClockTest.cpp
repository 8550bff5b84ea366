#include "ui/common/VisibleClock.h"

#include <QTest>
#include <QThread>
#include <QWidget>

#include <gtest/gtest.h>

namespace aerolith {

namespace {

/// An animation on a machine that is too slow for it.
class SlowPainter : public QWidget
{
public:
    int paintings = 0;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QThread::msleep(20);
        ++paintings;
    }
};

} // namespace

TEST(VisibleClock, LeavesTimeToOthersWhereFramesTakeLong)
{
    SlowPainter painter;
    const VisibleClock clock(painter, [&painter] { painter.update(); });
    painter.show();
    ASSERT_TRUE(QTest::qWaitFor([&painter] { return painter.paintings >= 2; }));
    painter.paintings = 0;
    QTest::qWait(600);
    EXPECT_GT(painter.paintings, 0);
    EXPECT_LE(painter.paintings, 11) << "a third of the time at most";
    EXPECT_GT(clock.time(), Seconds(0));
}

} // namespace aerolith
