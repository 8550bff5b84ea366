#pragma once

#include "platform/Queues.h"

#include <deque>
#include <memory>
#include <utility>

namespace aerolith {

/// The waiting tasks of a serial queue, which the test runs on its own thread. The scanner owns the queue,
/// the test this.
class ManualSerialTasks
{
public:
    [[nodiscard]] MakeSerialQueue factory()
    {
        return [this](const QString&) { return std::make_unique<Queue>(m_tasks); };
    }

    bool runOne()
    {
        if (m_tasks->empty()) {
            return false;
        }
        const Task task = std::move(m_tasks->front());
        m_tasks->pop_front();
        task();
        return true;
    }

private:
    using Tasks = std::deque<Task>;

    class Queue : public SerialQueue
    {
    public:
        explicit Queue(std::shared_ptr<Tasks> tasks) : m_tasks(std::move(tasks)) {}

        ~Queue() override { m_tasks->clear(); }

        void async(Task task) override { m_tasks->push_back(std::move(task)); }

    private:
        std::shared_ptr<Tasks> m_tasks;
    };

    std::shared_ptr<Tasks> m_tasks = std::make_shared<Tasks>();
};

} // namespace aerolith
