#include "platform/qt/QtMainQueue.h"
#include "platform/qt/WorkQueue.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <gtest/gtest.h>

#include <future>
#include <string>
#include <thread>

using namespace aerolith;

namespace {

class QtMainQueueTest : public testing::Test
{
protected:
    int m_argc = 0;
    QCoreApplication m_application{m_argc, nullptr};
    QEventLoop m_loop;
    Task m_quit = [this] { m_loop.quit(); };
    QtMainQueue m_queue;
};

} // namespace

TEST_F(QtMainQueueTest, RunsTasksOfEveryThreadInOrderOnALaterTurn)
{
    std::string order;
    std::thread([&] {
        m_queue.async([&] { order += 'a'; });
        m_queue.async([&] {
            order += 'b';
            m_queue.async([&] { order += 'd'; });
            m_queue.async(m_quit);
        });
    }).join();
    m_queue.async([&] { order += 'c'; });
    EXPECT_EQ(order, "");
    m_loop.exec();
    EXPECT_EQ(order, "abcd");
}

TEST_F(QtMainQueueTest, EndsATimerFromItsOwnTaskAndDelaysAtLeastAsLongAsAsked)
{
    int ticks = 0;
    std::unique_ptr<RepeatingTimer> timer;
    std::chrono::steady_clock::time_point ended;
    timer = m_queue.scheduledTimer(Seconds(0.001), [&] {
        if (++ticks == 3) {
            timer.reset();
            ended = std::chrono::steady_clock::now();
            m_queue.asyncAfter(Seconds(0.02), m_quit);
        }
    });
    m_loop.exec();
    EXPECT_EQ(ticks, 3);
    EXPECT_GE(std::chrono::steady_clock::now() - ended, std::chrono::milliseconds(20));
    EXPECT_TRUE(m_queue.scheduledTimer(Seconds(1e300), [] {})) << "beyond what a timer can count";
}

TEST_F(QtMainQueueTest, DropsWhatWaitsWhenItEnds)
{
    bool ran = false;
    {
        QtMainQueue queue;
        queue.async([&] { ran = true; });
        queue.asyncAfter(Seconds(0), [&] { ran = true; });
    }
    m_queue.asyncAfter(Seconds(0.005), m_quit);
    m_loop.exec();
    EXPECT_FALSE(ran);
}

TEST(WorkQueue, RunsTasksOneAtATimeInOrderOffTheCallersThread)
{
    std::string order;
    std::promise<std::thread::id> done;
    WorkQueue queue(QStringLiteral("com.app.wifiscanner.scan"));
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        queue.async([&order, letter] { order += letter; });
    }
    queue.async([&] { done.set_value(std::this_thread::get_id()); });
    EXPECT_NE(done.get_future().get(), std::this_thread::get_id());
    EXPECT_EQ(order, "abcdefghijklmnopqrstuvwxyz");
}

TEST(WorkQueue, EndsAfterTheRunningTaskAndDropsTheRest)
{
    std::promise<void> running;
    std::promise<void> release;
    bool finished = false;
    auto queue = std::make_unique<WorkQueue>(QStringLiteral("test"));
    // Work without an end: to run all that waits would take for ever.
    const Task another = [&another, &waiting = *queue] { waiting.async(another); };
    queue->async([&] {
        running.set_value();
        release.get_future().wait();
        finished = true;
    });
    queue->async(another);
    running.get_future().wait();
    std::thread releaser([&] { release.set_value(); });
    queue.reset();
    EXPECT_TRUE(finished) << "waited for";
    releaser.join();
}
