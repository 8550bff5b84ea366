#include "support/ManualMainQueue.h"

#include <algorithm>
#include <utility>

namespace aerolith {

class ManualMainQueue::Timer : public RepeatingTimer
{
public:
    explicit Timer(std::shared_ptr<Due> due) : m_due(std::move(due)) {}

    ~Timer() override { m_due->task = nullptr; }

private:
    std::shared_ptr<Due> m_due;
};

void ManualMainQueue::async(Task task)
{
    const std::lock_guard lock(m_mutex);
    m_tasks.push_back(std::move(task));
}

void ManualMainQueue::asyncAfter(Seconds delay, Task task)
{
    m_due.push_back(std::make_shared<Due>(Due{m_elapsed + delay, Seconds(0), std::move(task)}));
}

std::unique_ptr<RepeatingTimer> ManualMainQueue::scheduledTimer(Seconds interval, Task task)
{
    m_due.push_back(std::make_shared<Due>(Due{m_elapsed + interval, interval, std::move(task)}));
    return std::make_unique<Timer>(m_due.back());
}

bool ManualMainQueue::runOne()
{
    Task task;
    {
        const std::lock_guard lock(m_mutex);
        if (m_tasks.empty()) {
            return false;
        }
        task = std::move(m_tasks.front());
        m_tasks.pop_front();
    }
    task();
    return true;
}

void ManualMainQueue::drain()
{
    while (runOne()) {
    }
}

void ManualMainQueue::advance(Seconds time)
{
    const auto pass = [this](Seconds until) {
        m_now += std::chrono::duration_cast<std::chrono::nanoseconds>(until - m_elapsed);
        m_elapsed = until;
    };
    const Seconds end = m_elapsed + time;
    drain();
    for (;;) {
        removeCancelled();
        const auto next = std::min_element(m_due.begin(), m_due.end(),
                                           [](const auto& a, const auto& b) { return a->at < b->at; });
        if (next == m_due.end() || (*next)->at > end) {
            break;
        }
        const std::shared_ptr<Due> due = *next;
        pass(due->at);
        const Task task = due->task;
        if (due->interval > Seconds(0)) {
            due->at += due->interval;
        } else {
            m_due.erase(next);
        }
        task();
        drain();
    }
    pass(end);
}

std::size_t ManualMainQueue::runningTimers() const
{
    return static_cast<std::size_t>(std::count_if(
        m_due.begin(), m_due.end(), [](const auto& due) { return due->task && due->interval > Seconds(0); }));
}

void ManualMainQueue::removeCancelled()
{
    m_due.remove_if([](const auto& due) { return !due->task; });
}

} // namespace aerolith
