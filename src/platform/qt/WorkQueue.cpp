#include "platform/qt/WorkQueue.h"

#include <pthread.h>
#include <utility>

namespace aerolith {

WorkQueue::WorkQueue(const QString& label) : m_thread([this] { run(); })
{
    // The kernel keeps 15 bytes of a thread's name; the end of a reverse-DNS label tells most.
    pthread_setname_np(m_thread.native_handle(), label.toUtf8().right(15).constData());
}

WorkQueue::~WorkQueue()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ending = true;
    }
    m_wakeUp.notify_one();
    m_thread.join();
}

void WorkQueue::async(Task task)
{
    {
        const std::lock_guard lock(m_mutex);
        m_tasks.push_back(std::move(task));
    }
    m_wakeUp.notify_one();
}

void WorkQueue::run()
{
    for (;;) {
        Task task;
        {
            std::unique_lock lock(m_mutex);
            m_wakeUp.wait(lock, [this] { return m_ending || !m_tasks.empty(); });
            if (m_ending) {
                return;
            }
            task = std::move(m_tasks.front());
            m_tasks.pop_front();
        }
        task();
    }
}

} // namespace aerolith
