#pragma once

#include "platform/Queues.h"

#include <QString>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace aerolith {

/// A serial queue on a thread of its own, which sleeps while there is nothing to do. The thread runs at the
/// process's priority: what it does was asked for by the user.
class WorkQueue : public SerialQueue
{
public:
    explicit WorkQueue(const QString& label);
    ~WorkQueue() override;

    void async(Task task) override;

private:
    void run();

    std::mutex m_mutex;
    std::condition_variable m_wakeUp;
    std::deque<Task> m_tasks;
    bool m_ending = false;
    /// Last: it uses the others from its start.
    std::thread m_thread;
};

} // namespace aerolith
