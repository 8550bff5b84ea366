#include "platform/linux/networkmanager/AwaitCall.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace aerolith {

using namespace std::chrono_literals;

namespace {

constexpr auto wakeUpInterval = 100ms;
constexpr int handled = 1;

/// Whether the loop came to its own end.
bool run(QEventLoop& loop, const std::atomic<bool>& stopped)
{
    QTimer check;
    QObject::connect(&check, &QTimer::timeout, &loop, [&loop, &stopped] {
        if (stopped) {
            loop.quit();
        }
    });
    check.start(wakeUpInterval);
    return !stopped && loop.exec(QEventLoop::ExcludeUserInputEvents) == handled;
}

} // namespace

void awaitCall(const QDBusPendingCall& call, const std::atomic<bool>& stopped)
{
    // Without a bus a call has failed and is never finished.
    if (call.isFinished() || call.isError()) {
        return;
    }
    const QDBusPendingCallWatcher answer(call);
    QEventLoop loop;
    QObject::connect(&answer, &QDBusPendingCallWatcher::finished, &loop, [&loop] { loop.exit(handled); });
    (void)run(loop, stopped);
}

// At the application's end loops no longer run, but events are still handled.
void awaitAtEnd(const std::function<bool()>& isOver, std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit);
    QTimer wakeUp;
    wakeUp.start(wakeUpInterval);
    while (!isOver() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
}

bool pause(std::chrono::milliseconds duration, const std::atomic<bool>& stopped)
{
    QEventLoop loop;
    QTimer::singleShot(duration, &loop, [&loop] { loop.exit(handled); });
    return run(loop, stopped);
}

} // namespace aerolith
