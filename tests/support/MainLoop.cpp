#include "support/MainLoop.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace aerolith {

void startMainLoop()
{
    static int argumentCount = 1;
    static char name[] = "test";
    static char* arguments[] = {name, nullptr};
    static QCoreApplication application(argumentCount, arguments);
}

bool handleEventsUntil(const std::function<bool()>& condition)
{
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(10'000);
    while (!condition()) {
        if (!limit.isActive()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

void handleWaitingEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
}

} // namespace aerolith
