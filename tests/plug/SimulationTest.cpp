#include "plug/Simulation.h"

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

TEST(TakeSimulation, TakesOnlyWhatBelongsToIt)
{
    const QString file = u"town.json"_s;

    struct
    {
        QStringList arguments;
        std::optional<Simulation> expected;
        QStringList rest;
    } const cases[] = {
        {{}, {}, {}},
        {{u"--help"_s, file}, {}, {u"--help"_s, file}},
        {{u"--simulate"_s}, Simulation{}, {}},
        {{u"--simulate"_s, u"--list"_s, u"-"_s}, Simulation{}, {u"--list"_s, u"-"_s}},
        {{u"--cycles"_s, u"3"_s, u"--simulate"_s, file, u"extra"_s},
         Simulation{file},
         {u"--cycles"_s, u"3"_s, u"extra"_s}},
        {{u"--simulate=-odd=name"_s, file}, Simulation{u"-odd=name"_s}, {file}},
    };

    for (const auto& [arguments, expected, rest] : cases) {
        SCOPED_TRACE(arguments.join(u' ').toStdString());
        QStringList left = arguments;
        const auto taken = takeSimulation(left);
        ASSERT_TRUE(taken.ok());
        EXPECT_EQ(taken.value(), expected);
        EXPECT_EQ(left, rest);
    }
}

TEST(TakeSimulation, RefusesASecondOneAndAnEmptyName)
{
    for (QStringList arguments : {QStringList{u"--simulate"_s, u"a"_s, u"--simulate=b"_s},
                                  QStringList{u"--simulate="_s}, QStringList{u"--simulate"_s, QString()}}) {
        SCOPED_TRACE(arguments.join(u' ').toStdString());
        EXPECT_FALSE(takeSimulation(arguments).ok());
    }
}

} // namespace aerolith
