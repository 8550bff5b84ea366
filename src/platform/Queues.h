#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace aerolith {

using Task = std::function<void()>;
using Seconds = std::chrono::duration<double>;

/// A running timer: destroying it ends it, and no task of it runs afterwards. Main thread.
class RepeatingTimer
{
public:
    RepeatingTimer() = default;
    RepeatingTimer(const RepeatingTimer&) = delete;
    RepeatingTimer& operator=(const RepeatingTimer&) = delete;
    virtual ~RepeatingTimer() = default;
};

/// The main thread's queue of tasks. Tasks run on the main thread, one after the other, each on a later turn
/// than the call that posted it; tasks posted by async() run in the order of their posting.
class MainQueue
{
public:
    MainQueue() = default;
    MainQueue(const MainQueue&) = delete;
    MainQueue& operator=(const MainQueue&) = delete;
    virtual ~MainQueue() = default;

    /// Any thread.
    virtual void async(Task task) = 0;

    /// Runs the task once, no sooner than `delay` from now. Main thread.
    virtual void asyncAfter(Seconds delay, Task task) = 0;

    /// Runs the task every `interval` (above 0), the first time one interval from now. A tick that is missed
    /// while the main thread is busy is not made up for. Main thread.
    [[nodiscard]] virtual std::unique_ptr<RepeatingTimer> scheduledTimer(Seconds interval, Task task) = 0;
};

/// Runs tasks one at a time in the order of their posting, on a thread that is not the main thread.
/// Destroying it waits for the task that is running and drops those that have not begun.
class SerialQueue
{
public:
    SerialQueue() = default;
    SerialQueue(const SerialQueue&) = delete;
    SerialQueue& operator=(const SerialQueue&) = delete;
    virtual ~SerialQueue() = default;

    /// Any thread.
    virtual void async(Task task) = 0;
};

/// Makes a serial queue; the label names its thread in a debugger. Main thread.
using MakeSerialQueue = std::function<std::unique_ptr<SerialQueue>(const QString& label)>;

} // namespace aerolith
