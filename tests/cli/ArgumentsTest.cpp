#include "cli/Arguments.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace aerolith;
using namespace Qt::StringLiterals;

namespace {

Result<Arguments> parsed(const QString& line)
{
    return parseArguments(line.split(u' ', Qt::SkipEmptyParts));
}

} // namespace

TEST(Arguments, AreRead)
{
    const Arguments arguments =
        parsed(u"--details aa:bb one.csv --interval 0.5 --simulate --sort channel --details cc:dd -"_s)
            .value();
    EXPECT_EQ(arguments.interval, 0.5);
    EXPECT_EQ(arguments.sort, SortOption::channel);
    ASSERT_EQ(arguments.details.size(), 2);
    EXPECT_EQ(arguments.details[0].file, u"one.csv"_s);
    EXPECT_EQ(arguments.details[1].bssid, u"cc:dd"_s);
    EXPECT_EQ(arguments.simulate, Simulation{});
    EXPECT_EQ(parsed(u"--cycles 3"_s).value().simulate, std::nullopt);
    EXPECT_EQ(parsed(u"--simulate=-odd=name"_s).value().simulate, Simulation{u"-odd=name"_s});
}

TEST(Arguments, SayWhatWasExpected)
{
    const std::pair<QString, QString> cases[] = {
        {u"--cycles 0"_s, u"--cycles needs a whole number from 1 up, not \"0\""_s},
        {u"--cycles"_s, u"--cycles needs a whole number from 1 up"_s},
        {u"--interval inf"_s, u"--interval needs a number of seconds from 0 up, not \"inf\""_s},
        {u"--sort rssi"_s, u"--sort needs one of signal, ssid, channel, security, not \"rssi\""_s},
        {u"--details aa:bb"_s, u"--details needs a file after the BSSID"_s},
        {u"--details"_s, u"--details needs a BSSID and a file"_s},
        {u"--list --visible-only"_s, u"--list needs a file"_s},
        {u"--watch --list a.json"_s, u"--watch writes JSON lines as it scans, it does not go with --list"_s},
        {u"--record -"_s, u"--record needs a file, not \"-\": standard output is for what was heard"_s},
        {u"--simulate a --simulate=b"_s, u"--simulate is given twice"_s},
        {u"--simulate="_s, u"--simulate: the file name is empty"_s},
    };
    for (const auto& [line, description] : cases) {
        const auto result = parsed(line);
        ASSERT_FALSE(result.ok()) << line.toStdString();
        EXPECT_EQ(result.error().description, description);
    }
}
