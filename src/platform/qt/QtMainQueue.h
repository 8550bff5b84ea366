#pragma once

#include "platform/Queues.h"

#include <QObject>

namespace aerolith {

/// The main queue on Qt's event loop. Lives on the main thread; tasks that are still waiting when it is
/// destroyed are dropped.
class QtMainQueue : public MainQueue
{
public:
    void async(Task task) override;
    void asyncAfter(Seconds delay, Task task) override;
    [[nodiscard]] std::unique_ptr<RepeatingTimer> scheduledTimer(Seconds interval, Task task) override;

private:
    /// Carries posted tasks; its destruction takes them along.
    QObject m_context;
};

} // namespace aerolith
