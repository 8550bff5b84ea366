#include "app/CommandLine.h"

namespace aerolith {

using namespace Qt::StringLiterals;

Result<CommandLine> parseCommandLine(QStringList arguments)
{
    const auto simulate = takeSimulation(arguments);
    if (!simulate.ok()) {
        return simulate.error();
    }
    CommandLine commandLine{.simulate = simulate.value()};
    for (const QString& argument : arguments) {
        if (argument == "--help"_L1) {
            commandLine.action = CommandLine::Action::showHelp;
        } else if (argument == "--version"_L1) {
            commandLine.action = CommandLine::Action::showVersion;
        } else {
            return unknownArgument(argument);
        }
    }
    return commandLine;
}

QString helpText()
{
    return u"Usage: aerolith [--simulate [FILE]]\n"
           "\n"
           "Surveys the Wi-Fi networks around this machine. Started again, it brings its window\n"
           "to the front; a simulated run is always one of its own.\n"
           "\n"
           "  --simulate [FILE]  follow the simulated radio of a scenario FILE, or a built-in\n"
           "                     neighbourhood, in place of the machine's own\n"
           "  --help             show this help\n"
           "  --version          show the version\n"_s;
}

} // namespace aerolith
