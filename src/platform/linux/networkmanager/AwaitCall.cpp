#include "platform/linux/networkmanager/AwaitCall.h"

#include <QDBusPendingCallWatcher>
#include <QEventLoop>

namespace aerolith {

void awaitCall(const QDBusPendingCall& call)
{
    const QDBusPendingCallWatcher answer(call);
    QEventLoop loop;
    QObject::connect(&answer, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace aerolith
