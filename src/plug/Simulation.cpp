#include "plug/Simulation.h"

namespace aerolith {

using namespace Qt::StringLiterals;

Result<std::optional<Simulation>> takeSimulation(QStringList& arguments)
{
    constexpr auto option = "--simulate"_L1;
    constexpr auto optionWithFile = "--simulate="_L1;

    std::optional<Simulation> simulation;
    for (qsizetype i = 0; i < arguments.size();) {
        if (arguments[i] != option && !arguments[i].startsWith(optionWithFile)) {
            ++i;
            continue;
        }
        if (simulation) {
            return Error{u"--simulate is given twice"_s};
        }
        simulation.emplace();
        const QString argument = arguments.takeAt(i);
        if (argument != option) {
            simulation->scenarioFile = argument.sliced(optionWithFile.size());
        } else if (i < arguments.size() && !arguments[i].startsWith(u'-')) {
            simulation->scenarioFile = arguments.takeAt(i);
        }
        if (simulation->scenarioFile && simulation->scenarioFile->isEmpty()) {
            return Error{u"--simulate: the file name is empty"_s};
        }
    }
    return simulation;
}

Error unknownArgument(const QString& argument)
{
    return {u"Unknown argument \"%1\" (try --help)"_s.arg(argument)};
}

} // namespace aerolith
