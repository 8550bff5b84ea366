#include "app/CommandLine.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;
using Action = CommandLine::Action;

TEST(CommandLine, KnowsItsArguments)
{
    EXPECT_EQ(parseCommandLine({}).value().action, Action::run);
    EXPECT_EQ(parseCommandLine({}).value().simulate, std::nullopt);
    EXPECT_EQ(parseCommandLine({u"--simulate"_s}).value().simulate, Simulation{});
    EXPECT_EQ(parseCommandLine({u"--simulate"_s, u"town.json"_s}).value().simulate,
              Simulation{u"town.json"_s});
    EXPECT_EQ(parseCommandLine({u"--help"_s}).value().action, Action::showHelp);
    EXPECT_EQ(parseCommandLine({u"--simulate"_s, u"--version"_s}).value().action, Action::showVersion);
}

TEST(CommandLine, RefusesAnyOther)
{
    for (const QStringList& arguments :
         {QStringList{u"town.json"_s}, QStringList{u"--simulate"_s, u"a"_s, u"b"_s},
          QStringList{u"--style"_s}, QStringList{u"--help"_s, u"-x"_s}, QStringList{QString()}}) {
        SCOPED_TRACE(arguments.join(u' ').toStdString());
        const auto parsed = parseCommandLine(arguments);
        ASSERT_FALSE(parsed.ok());
        EXPECT_TRUE(parsed.error().description.contains(arguments.last()));
    }
}

} // namespace aerolith
