#include "platform/simulated/ScenarioReader.h"

#include "support/Files.h"
#include "support/Printing.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace aerolith {
namespace {

QString complaint(const QByteArray& json)
{
    const Result<Scenario> result = parseScenario(json);
    return result.ok() ? QString() : result.error().description;
}

/// The one network of a scenario.
QByteArray network(const QByteArray& members)
{
    return R"({"cycles": [{"networks": [{)" + members + "}]}]}";
}

TEST(ScenarioReader, refusesWithPlaceAndExpectation)
{
    const QByteArray rest = R"(, "cycles": [{"networks": []}]})";
    const auto anInteger = u"expected an integer from -2147483648 to 2147483647, found "_s;
    const std::pair<QByteArray, QString> cases[] = {
        {"", u"line 1, column 1: expected JSON, illegal value"_s},
        {"{\n\n \"\xc3\xa9\": 1x}", u"line 3, column 8: expected JSON, unterminated object"_s},
        {"{\n\"cycles\": \"\xff\"}", u"line 2, column 11: expected JSON, invalid UTF8 string"_s},
        {QByteArray(100'000, '['), u"line 1, column 1025: expected JSON, too deeply nested document"_s},
        {"[1]", u"top level: expected an object, found a list"_s},
        {"{\"cycles\": [{\"networks\": [{\"ssid\": \"a,{\\\"\",\n  \"s\\u0073id\": \"b\"}]}]}",
         u"line 2, column 3: expected each key once, found \"ssid\" again"_s},
        {QByteArray(64 * 1024 * 1024 + 1, ' '), u"expected at most 64 MiB, found more"_s},
        {"{}", u"cycles: expected this required key, found nothing"_s},
        {R"({"cycles": [{"networks": []}, {"network": []}]})",
         u"cycles[1].network: unknown key, expected one of joined, networks"_s},
        {R"({"cycles": [{"error": "no", "networks": []}]})",
         u"cycles[0].networks: unknown key, expected one of error"_s},
        {"{\"a\\nb\\u0085\": 1" + rest,
         u"[\"a\\u000ab\\u0085\"]: unknown key, expected one of authorization, answer, interface, "
         "scanSeconds, cycles, afterLast, passwords"_s},
        {network(R"("channel": {"band": 5})"),
         u"cycles[0].networks[0].channel.band: unknown key, expected one of number, width"_s},
        {R"({"cycles": []})", u"cycles: expected a list of at least one cycle, found an empty list"_s},
        {R"({"cycles": null})", u"cycles: expected a list, found null"_s},
        {R"({"cycles": [{"joined": 5, "networks": []}]})",
         u"cycles[0].joined: expected an object or null, found 5"_s},
        {R"({"authorization": "yes")" + rest,
         u"authorization: expected one of \"notDetermined\", \"restricted\", \"denied\", "
         "\"authorizedAlways\", \"authorized\", found \"yes\""_s},
        {R"({"interface": {"powerOn": 1})" + rest, u"interface.powerOn: expected true or false, found 1"_s},
        {R"({"interface": {"channels": [1, "6"]})" + rest,
         u"interface.channels[1]: "_s + anInteger + u"\"6\""_s},
        {R"({"scanSeconds": 1e300)" + rest,
         u"scanSeconds: expected a number from 0 to 86400, found 1e+300"_s},
        {R"({"passwords": {"My \"home\"": null})" + rest,
         u"passwords[\"My \\\"home\\\"\"]: expected a string of Unicode text, found null"_s},
        {network(R"("ssid": "\ud83d")"),
         u"cycles[0].networks[0].ssid: expected a string of Unicode text or null, found \"\ufffd\""_s},
        {network(R"("rssi": ")" + QByteArray(1000, 'x') + '"'),
         u"cycles[0].networks[0].rssi: "_s + anInteger + u"\""_s + QString(60, u'x') + u"…\""_s},
        {network(R"("rssi": -50.5)"), u"cycles[0].networks[0].rssi: "_s + anInteger + u"-50.5"_s},
        {network(R"("rssi": 9223372036854775808)"),
         u"cycles[0].networks[0].rssi: "_s + anInteger + u"9223372036854776000"_s},
        {network(R"("security": [4, 64])"),
         u"cycles[0].networks[0].security[1]: expected an integer from 0 to 63, found 64"_s},
    };
    for (const auto& [json, expected] : cases) {
        EXPECT_EQ(complaint(json), expected) << json.left(100).toStdString();
    }
}

TEST(ScenarioReader, takesWhatIsMissingFromTheDefaultsAndTheFurthestValuesAsTheyAre)
{
    const Scenario least = parseScenario(R"({"cycles": [{"networks": [{}]}]})").value();
    EXPECT_EQ(least.authorization, CLAuthorizationStatus::authorizedWhenInUse);
    EXPECT_EQ(least.answer, CLAuthorizationStatus::authorizedWhenInUse);
    EXPECT_EQ(least.interface->channels, (QList<qint64>{1, 6, 11, 36}));
    EXPECT_EQ(least.cycles[0].networks[0].beaconInterval, 100);

    const Result<Scenario> most = parseScenario(network(
        R"("ssid": "Café", "channel": {"number": -3, "width": 9}, "security": [63, 0, 0], "beaconInterval": 0)"));
    ASSERT_TRUE(most.ok()) << most.error().description.toStdString();
    const CWNetwork& read = most.value().cycles[0].networks[0];
    EXPECT_EQ(read.ssidData, "Caf\xc3\xa9");
    EXPECT_EQ(read.wlanChannel, (CWChannel{-3, 9}));
    EXPECT_EQ(read.securityCodes.bits(), (quint64{1} << 63) + 1);
    EXPECT_EQ(read.beaconInterval, 0);
}

TEST(ScenarioReader, namesTheFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.json"_s);
    const auto description = [&] { return readScenario(path).error().description; };
    EXPECT_EQ(description(), path + u": No such file or directory"_s);

    putFile(path, "[]");
    EXPECT_EQ(description(), path + u": top level: expected an object, found an empty list"_s);

    EXPECT_TRUE(readScenario(folder.path()).error().description.startsWith(folder.path() + u": "_s));
    EXPECT_EQ(readScenario(u"/dev/zero"_s).error().description,
              u"/dev/zero: expected at most 64 MiB, found more"_s);
}

} // namespace
} // namespace aerolith
