#include "app/DisplayCheck.h"

#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

namespace aerolith {

namespace {

/// Qt explains in warnings, one for each thing it tried, before it gives up.
QStringList warnings;

void collect(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type != QtFatalMsg) {
        warnings.append(message);
        return;
    }
    const QString reason = warnings.isEmpty() ? message : warnings.first();
    std::fprintf(stderr, "aerolith: cannot open the display: %s\n", qPrintable(reason.simplified()));
    // Neither a core file nor destructors of what is half made.
    std::_Exit(1);
}

} // namespace

DisplayCheck::DisplayCheck()
{
    qInstallMessageHandler(collect);
}

DisplayCheck::~DisplayCheck()
{
    qInstallMessageHandler(nullptr);
    for (const QString& warning : warnings) {
        qWarning("%s", qPrintable(warning));
    }
    warnings.clear();
}

} // namespace aerolith
