#include "app/AerolithApp.h"
#include "app/ColourScheme.h"
#include "app/CommandLine.h"
#include "app/DisplayCheck.h"
#include "app/FontConfiguration.h"
#include "app/PortalSettings.h"
#include "app/ProgramStyle.h"
#include "app/ReducedMotion.h"
#include "app/Translations.h"
#include "platform/qt/Locale.h"
#include "platform/qt/StandardLog.h"
#include "platform/qt/TerminationSignals.h"
#include "plug/PluggedPlatform.h"
#include "ui/menubar/AccessiblePopover.h"

#include <QApplication>
#include <QScopeGuard>

#include <csignal>
#include <cstdio>
#include <optional>

using namespace aerolith;
using namespace Qt::StringLiterals;

namespace {

constexpr int wrongArguments = 2;

int refuse(const Error& error)
{
    std::fprintf(stderr, "aerolith: %s\n", qUtf8Printable(escapedForLog(error.description)));
    return wrongArguments;
}

int run(int argc, char** argv, const std::optional<Simulation>& simulate)
{
    const StartupToken token = StartupToken::fromEnvironment();
    // The program takes its own arguments only, none of Qt's.
    argc = 1;
    std::optional<DisplayCheck> displayCheck(std::in_place);
    std::optional<FontConfiguration> fonts(std::in_place);
    const QApplication application(argc, argv);
    // The application drops the configuration at its end, which may come early.
    const auto awaitFonts = qScopeGuard([&fonts] { fonts.reset(); });
    displayCheck.reset();
    QApplication::setStyle(new ProgramStyle);
    const Translations translations(messageLanguages());
    QApplication::setApplicationName(u"Aerolith"_s);
    QApplication::setApplicationVersion(QStringLiteral(AEROLITH_VERSION));
    QApplication::setDesktopFileName(u"org.aerolith.Aerolith"_s);

    PortalSettings portalSettings;
    const ColourScheme colourScheme(portalSettings);
    const ReducedMotion reducedMotion(portalSettings);
    OneInstance instance;
    Failure unclaimed;
    // A simulated run is one of its own, beside a real one and beside other simulated ones.
    if (!simulate) {
        const auto role = instance.claim(token);
        if (!role.ok()) {
            unclaimed = role.error();
        } else if (role.value() == OneInstance::Role::second) {
            std::fputs("aerolith: running already; its window has been brought to the front\n", stderr);
            return 0;
        }
    }

    StandardLog log(stdout);
    const auto platform = plugPlatform(simulate, log);
    if (!platform.ok()) {
        return refuse(platform.error());
    }
    fonts.reset();
    const Surroundings surroundings = platform.value()->surroundings();
    if (unclaimed) {
        log.line(unclaimed->description);
    }
    const TerminationSignals terminationSignals([] { QApplication::exit(0); });
    listPopoversAsWindows();
    portalSettings.tellFirst();
    AerolithApp app(surroundings, platform.value()->desktopServices(), instance, portalSettings);
    app.showMainWindow();
    const int status = QApplication::exec();
    instance.release();
    platform.value()->stopScanning();
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    // Standard output may be a pipe that its reader closes.
    std::signal(SIGPIPE, SIG_IGN);

    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    const auto commandLine = parseCommandLine(arguments);
    if (!commandLine.ok()) {
        return refuse(commandLine.error());
    }
    switch (commandLine.value().action) {
    case CommandLine::Action::showHelp:
        std::fputs(qUtf8Printable(helpText()), stdout);
        return 0;
    case CommandLine::Action::showVersion:
        std::puts("aerolith " AEROLITH_VERSION);
        return 0;
    case CommandLine::Action::run:
        break;
    }
    return run(argc, argv, commandLine.value().simulate);
}
