#pragma once

#include "platform/Clock.h"
#include "platform/Queues.h"

#include <deque>
#include <list>
#include <memory>
#include <mutex>

namespace aerolith {

/// A main queue and clock that move only when the test says so.
class ManualMainQueue : public MainQueue, public Clock
{
public:
    void async(Task task) override;
    void asyncAfter(Seconds delay, Task task) override;
    [[nodiscard]] std::unique_ptr<RepeatingTimer> scheduledTimer(Seconds interval, Task task) override;

    [[nodiscard]] TimePoint now() const override { return m_now; }

    /// Runs one waiting task; false when there was none.
    bool runOne();

    /// Runs what waits and what that posts.
    void drain();

    /// Lets time pass: what falls due runs at its moment, with the queue drained before and after.
    void advance(Seconds time);

    /// The clock as a user might set it: timers do not notice.
    void setClock(TimePoint time) { m_now = time; }

    [[nodiscard]] std::size_t runningTimers() const;

private:
    struct Due
    {
        Seconds at;
        /// 0 for a task that runs once.
        Seconds interval;
        Task task;
    };

    class Timer;

    void removeCancelled();

    std::mutex m_mutex;
    std::deque<Task> m_tasks;
    std::list<std::shared_ptr<Due>> m_due;
    Seconds m_elapsed{0};
    TimePoint m_now{std::chrono::seconds(1'800'000'000)};
};

} // namespace aerolith
