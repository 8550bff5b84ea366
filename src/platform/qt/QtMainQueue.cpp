#include "platform/qt/QtMainQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace aerolith {

namespace {

/// Qt's timers count whole milliseconds in an int: 24 days at most.
std::chrono::milliseconds timerPeriod(Seconds seconds)
{
    const double milliseconds = std::ceil(seconds.count() * 1000);
    return std::chrono::milliseconds(
        std::llround(std::clamp(milliseconds, 1.0, double{std::numeric_limits<int>::max()})));
}

class QtTimer : public RepeatingTimer
{
public:
    QtTimer(Seconds interval, const Task& task)
    {
        // Coarse timers may fire up to 5 % early.
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, task);
        m_timer.start(timerPeriod(interval));
    }

private:
    QTimer m_timer;
};

} // namespace

void QtMainQueue::async(Task task)
{
    const std::lock_guard lock(m_mutex);
    m_tasks.push(std::move(task));
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

bool QtMainQueue::event(QEvent* event)
{
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    Task task;
    {
        const std::lock_guard lock(m_mutex);
        task = std::move(m_tasks.front());
        m_tasks.pop();
    }
    task();
    return true;
}

void QtMainQueue::asyncAfter(Seconds delay, Task task)
{
    QTimer::singleShot(timerPeriod(delay), Qt::PreciseTimer, this, std::move(task));
}

std::unique_ptr<RepeatingTimer> QtMainQueue::scheduledTimer(Seconds interval, Task task)
{
    return std::make_unique<QtTimer>(interval, task);
}

} // namespace aerolith
