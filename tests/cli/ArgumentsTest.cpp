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
        parsed(u"--details aa:bb one.csv --interval 0.5 --sort channel --details cc:dd - --format json"_s)
            .value();
    EXPECT_EQ(arguments.interval, 0.5);
    EXPECT_EQ(arguments.sort, SortOption::channel);
    ASSERT_EQ(arguments.details.size(), 2);
    EXPECT_EQ(arguments.details[0].bssid, u"aa:bb"_s);
    EXPECT_EQ(arguments.details[0].file, u"one.csv"_s);
    EXPECT_EQ(arguments.details[1].file, u"-"_s);
    EXPECT_FALSE(parsed(u"--simulate --cycles 2"_s).value().simulate->scenarioFile);
}

TEST(Arguments, SayWhatWasExpected)
{
    const std::pair<QString, QString> cases[] = {
        {u"--cycles 0"_s, u"--cycles needs a whole number from 1 up, not \"0\""_s},
        {u"--cycles 2.5"_s, u"--cycles needs a whole number from 1 up, not \"2.5\""_s},
        {u"--cycles"_s, u"--cycles needs a whole number from 1 up"_s},
        {u"--interval -1"_s, u"--interval needs a number of seconds from 0 up, not \"-1\""_s},
        {u"--interval inf"_s, u"--interval needs a number of seconds from 0 up, not \"inf\""_s},
        {u"--sort rssi"_s, u"--sort needs one of signal, ssid, channel, security, not \"rssi\""_s},
        {u"--format xml"_s, u"--format needs one of csv, json, not \"xml\""_s},
        {u"--details aa:bb"_s, u"--details needs a file after the BSSID"_s},
        {u"--details"_s, u"--details needs a BSSID and a file"_s},
        {u"--list --visible-only"_s, u"--list needs a file"_s},
        {u"--watch --list a.json"_s, u"--watch writes JSON lines as it scans, it does not go with --list"_s},
        {u"--details aa b.csv --watch"_s,
         u"--watch writes JSON lines as it scans, it does not go with --details"_s},
        {u"--watch --format json"_s,
         u"--watch writes JSON lines as it scans, it does not go with --format"_s},
        {u"--record -"_s, u"--record needs a file, not \"-\": standard output is for what was heard"_s},
        {u"list.csv"_s, u"Unknown argument \"list.csv\" (try --help)"_s},
    };
    for (const auto& [line, description] : cases) {
        const auto result = parsed(line);
        ASSERT_FALSE(result.ok()) << line.toStdString();
        EXPECT_EQ(result.error().description, description);
    }
}
