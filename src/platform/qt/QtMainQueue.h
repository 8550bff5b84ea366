#pragma once

#include "platform/Queues.h"

#include <QObject>
#include <queue>

#include <mutex>

namespace aerolith {

/// The main queue on Qt's event loop. Lives on the main thread, where every task also ends its life; tasks
/// that are still waiting when it is destroyed are dropped.
class QtMainQueue : public QObject, public MainQueue
{
public:
    void async(Task task) override;
    void asyncAfter(Seconds delay, Task task) override;
    [[nodiscard]] std::unique_ptr<RepeatingTimer> scheduledTimer(Seconds interval, Task task) override;

protected:
    bool event(QEvent* event) override;

private:
    std::mutex m_mutex;
    /// One event is on its way for each.
    std::queue<Task> m_tasks;
};

} // namespace aerolith
