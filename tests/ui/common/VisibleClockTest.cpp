#include "ui/common/VisibleClock.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <vector>

namespace aerolith {

using namespace std::chrono_literals;

namespace {

using Time = std::chrono::steady_clock;

/// An animation on a machine that is too slow for it.
class SlowPainter : public QWidget
{
public:
    static constexpr auto paintTime = 20ms;

    std::vector<Time::duration> pauses;

protected:
    void paintEvent(QPaintEvent*) override
    {
        const auto begun = Time::now();
        if (m_ended != Time::time_point()) {
            pauses.push_back(begun - m_ended);
        }
        while (Time::now() < begun + paintTime) {
        }
        m_ended = Time::now();
    }

private:
    Time::time_point m_ended;
};

} // namespace

TEST(VisibleClock, LeavesTimeToOthersWhereFramesTakeLong)
{
    SlowPainter painter;
    const VisibleClock clock(painter, [&painter] { painter.update(); });
    painter.show();
    ASSERT_TRUE(QTest::qWaitFor([&painter] { return painter.pauses.size() >= 4; }));
    // The first paint is the window's own.
    for (auto pause = painter.pauses.begin() + 1; pause != painter.pauses.end(); ++pause) {
        EXPECT_GE(*pause, 2 * SlowPainter::paintTime - 2ms);
    }
    EXPECT_GT(clock.time(), Seconds(0));
}

} // namespace aerolith
