#include "cli/Arguments.h"
#include "cli/ExitStatus.h"
#include "cli/ProgressLine.h"
#include "cli/ScanCommand.h"
#include "platform/qt/TerminationSignals.h"
#include "plug/PluggedPlatform.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <optional>

using namespace aerolith;
using namespace Qt::StringLiterals;

namespace {

void print(std::FILE* stream, const QString& text)
{
    std::fputs(text.toUtf8().constData(), stream);
}

int fail(ExitStatus status, const QString& description)
{
    print(stderr, u"aerolith-scan: %1\n"_s.arg(escapedForLog(description)));
    return static_cast<int>(status);
}

int scan(const Arguments& arguments)
{
    std::optional<ScanCommand> command;
    // First of all: who starts the program may end it as soon as it shows a sign of life.
    std::optional<TerminationSignals> terminationSignals;
    if (arguments.watch || arguments.recordFile) {
        terminationSignals.emplace([&command] { command->interrupt(); });
    }
    ProgressLine progress(stderr);
    const auto platform = plugPlatform(arguments.simulate, progress);
    if (!platform.ok()) {
        return fail(ExitStatus::usage, platform.error().description);
    }
    command.emplace(
        platform.value()->surroundings(), arguments, progress, stdout,
        [](const QString& line) { fail(ExitStatus::failed, line); },
        [](ExitStatus status) { QCoreApplication::exit(static_cast<int>(status)); });
    const int status = QCoreApplication::exec();
    platform.value()->stopScanning();
    // It ends before the platform that it refers to.
    command.reset();
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    // Standard output may be a pipe that its reader closes.
    std::signal(SIGPIPE, SIG_IGN);

    const QCoreApplication application(argc, argv);
    const auto arguments = parseArguments(QCoreApplication::arguments().sliced(1));
    if (!arguments.ok()) {
        return fail(ExitStatus::usage, arguments.error().description);
    }
    if (arguments.value().help) {
        print(stdout, usage());
        return 0;
    }
    if (arguments.value().version) {
        print(stdout, u"aerolith-scan %1\n"_s.arg(QStringLiteral(AEROLITH_VERSION)));
        return 0;
    }
    return scan(arguments.value());
}
