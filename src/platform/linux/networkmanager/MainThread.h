#pragma once

#include <QCoreApplication>
#include <QThread>

namespace aerolith {

/// Whether this is the application's thread, whose events keep windows alive; false where there is none.
[[nodiscard]] inline bool isMainThread()
{
    const auto* application = QCoreApplication::instance();
    return application != nullptr && application->thread() == QThread::currentThread();
}

} // namespace aerolith
