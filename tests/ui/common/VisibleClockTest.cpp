#include "ui/common/VisibleClock.h"

#include <QApplication>
#include <QProxyStyle>
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

/// The style of a desktop that asks for no animations.
class StillStyle : public QProxyStyle
{
public:
    StillStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

/// The clock of a widget in a window.
class VisibleClockTest : public testing::Test
{
protected:
    VisibleClockTest()
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    /// Whether time goes on, or anything is done at all.
    bool isRunning()
    {
        QCoreApplication::processEvents();
        frames = 0;
        const Seconds before = clock.time();
        QTest::qWait(20);
        return clock.time() > before || frames > 0;
    }

    QWidget window;
    QWidget widget{&window};
    int frames = 0;
    VisibleClock clock{widget, [this] { ++frames; }, std::chrono::milliseconds(1)};
};

} // namespace

TEST_F(VisibleClockTest, RunsOnlyWhileTheWidgetCanBeSeen)
{
    EXPECT_TRUE(isRunning());
    widget.hide();
    EXPECT_FALSE(isRunning());
    widget.show();
    EXPECT_TRUE(isRunning());

    window.hide();
    EXPECT_FALSE(isRunning());
    window.show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return isRunning(); }));
    widget.hide();
    window.hide();
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_FALSE(isRunning()) << "hidden in a window that comes back";
    widget.show();

    window.showMinimized();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isRunning(); }));
    window.showNormal();
    EXPECT_TRUE(QTest::qWaitFor([this] { return isRunning(); }));
}

TEST_F(VisibleClockTest, StandsStillWhereTheDesktopWantsNoAnimations)
{
    StillStyle still;
    widget.setStyle(&still);
    EXPECT_FALSE(isRunning());
    widget.setStyle(QApplication::style());
    EXPECT_TRUE(isRunning());
}

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
