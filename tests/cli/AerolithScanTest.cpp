// The program as a script meets it: arguments in, documents and an exit status out.

#include "support/Files.h"
#include "support/Printing.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <climits>
#include <csignal>
#include <pty.h>
#include <tuple>
#include <unistd.h>

using namespace aerolith;
using namespace Qt::StringLiterals;

namespace {

/// Two cycles: two access points, then one of them alone.
constexpr auto twoCycles = R"({"cycles": [
    {"joined": {"ssid": "Quay", "bssid": "02:00:00:00:00:02"}, "networks": [
        {"bssid": "02:00:00:00:00:01", "ssid": "Attic", "rssi": -40, "channel": {"number": 36, "width": 3}, "country": "US"},
        {"bssid": "02:00:00:00:00:02", "ssid": "Quay", "rssi": -70, "channel": {"number": 6, "width": 1}}]},
    {"networks": [{"bssid": "02:00:00:00:00:01", "ssid": "Attic", "rssi": -42}]}]})";

struct Outcome
{
    int status;
    QByteArray output;
    QByteArray errors;
};

class AerolithScan : public testing::Test
{
protected:
    AerolithScan() { write(u"air.json"_s, twoCycles); }

    Outcome run(const QString& arguments)
    {
        QProcess process;
        start(process, arguments);
        return end(process);
    }

    void start(QProcess& process, const QString& arguments)
    {
        start(process, QStringLiteral(AEROLITH_SCAN), arguments.split(u' ', Qt::SkipEmptyParts));
    }

    void start(QProcess& process, const QString& program, const QStringList& arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_CONFIG_HOME"_s, m_folder.path());
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder.path());
        process.start(program, arguments);
    }

    static Outcome end(QProcess& process)
    {
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

    void write(const QString& name, const QByteArray& contents)
    {
        putFile(m_folder.filePath(name), contents);
    }

    [[nodiscard]] QByteArray read(const QString& name) const { return bytesIn(m_folder.filePath(name)); }

private:
    QTemporaryDir m_folder;
};

const auto settings = u"aerolith/aerolith.conf"_s;

const QByteArray header = R"~("SSID","BSSID","RSSI (dBm)","Channel","Band","Security","Country")~";
const QByteArray attic = "\n"
                         R"("Attic","02:00:00:00:00:01","-40","36","5 GHz","None","US")";
const QByteArray quay = "\n"
                        R"("Quay","02:00:00:00:00:02","-70","6","2.4 GHz","None","Unknown")";

} // namespace

TEST_F(AerolithScan, WritesTheListSortedLastAsTheStoredSettingsSay)
{
    EXPECT_EQ(run(u"--simulate air.json"_s).output, header + quay + attic) << "the joined network first";
    write(settings,
          "[[[\n\xff\xfe=%%%\nscanInterval=soon\nhistoryLimit=1e99\nhiddenBSSIDs=@Variant(\\0\\0)\n");
    const Outcome sorted = run(u"--simulate air.json --cycles 2 --interval 0 --sort ssid --visible-only"_s);
    EXPECT_EQ(sorted.status, 0) << "with nonsense for settings";
    EXPECT_EQ(sorted.output.split('\n').size(), 3);
    write(u"apart.json"_s, QByteArray(twoCycles).replace(
                               R"({"ssid": "Quay", "bssid": "02:00:00:00:00:02"}, "n)", R"(null, "n)"));
    EXPECT_EQ(run(u"--simulate apart.json --sort channel"_s).output, header + quay + attic);
    write(settings, "hiddenBSSIDs=\"@ByteArray([\\\"02:00:00:00:00:02\\\"])\"\nhistoryLimit=1\n");
    EXPECT_EQ(run(u"--simulate air.json --visible-only"_s).output, header + attic);
    const Outcome details =
        run(u"--simulate air.json --cycles 2 --interval 0 --details 02:00:00:00:00:02 - --format json"_s);
    const QJsonArray history = QJsonDocument::fromJson(details.output).object()[u"signalHistory"_s].toArray();
    ASSERT_EQ(history.size(), 1) << "hidden access points have details too";
    EXPECT_EQ(history[0].toObject()[u"rssi"_s], QJsonValue(-100));
}

TEST_F(AerolithScan, WatchesWithALineForEachAccessPointAndCycle)
{
    write(u"air.json"_s, R"({"cycles": [
        {"joined": {"ssid": "Quay", "bssid": "02:00:00:00:00:02"},
         "networks": [{"bssid": "02:00:00:00:00:01", "ssid": "A\nb", "rssi": -40},
                      {"bssid": "02:00:00:00:00:02", "ssid": "Quay", "rssi": -70}]},
        {"error": "Busy"},
        {"joined": {"ssid": "A\nb", "bssid": "02:00:00:00:00:01"},
         "networks": [{"bssid": "02:00:00:00:00:01", "ssid": "A\nb", "rssi": -42}]}]})");
    const Outcome outcome = run(u"--simulate air.json --watch --cycles 3 --interval 0"_s);
    EXPECT_EQ(outcome.status, 0);
    const QByteArrayList written = outcome.output.split('\n');
    ASSERT_EQ(written.size(), 5) << outcome.output.toStdString();

    const QJsonObject expected[] = {
        {{u"cycle"_s, 1}, {u"heard"_s, true}, {u"rssi"_s, -70}, {u"isCurrentNetwork"_s, true}},
        {{u"cycle"_s, 1}, {u"heard"_s, true}, {u"rssi"_s, -40}, {u"ssidBytes"_s, u"410a62"_s}},
        {{u"cycle"_s, 3}, {u"heard"_s, true}, {u"rssi"_s, -42}, {u"isCurrentNetwork"_s, true}},
        {{u"cycle"_s, 3}, {u"heard"_s, false}, {u"rssi"_s, -70}, {u"isCurrentNetwork"_s, true}},
    };
    for (qsizetype i = 0; i < 4; ++i) {
        const QJsonObject line = QJsonDocument::fromJson(written[i]).object();
        for (auto part = expected[i].begin(); part != expected[i].end(); ++part) {
            EXPECT_EQ(line[part.key()], *part) << written[i].toStdString();
        }
    }
    EXPECT_EQ(run(u"--simulate air.json --watch --cycles 2 --interval 0"_s).status, 1);
}

TEST_F(AerolithScan, WatchesUntilInterruptedOrNobodyReads)
{
    // The scan that is interrupted would go on for a day.
    write(u"slow.json"_s, R"({"scanSeconds": 86400, "cycles": [{"networks": []}]})");
    for (const int signal : {SIGINT, SIGTERM}) {
        for (const QString& name : {u"air.json"_s, u"slow.json"_s}) {
            QProcess process;
            start(process, u"--watch --interval 3600 --simulate "_s + name);
            process.setReadChannel(name.startsWith(u'a') ? QProcess::StandardOutput
                                                         : QProcess::StandardError);
            ASSERT_TRUE(process.waitForReadyRead()) << "what a cycle brings is written at its end";
            kill(static_cast<pid_t>(process.processId()), signal);
            EXPECT_EQ(end(process).status, 0) << name.toStdString();
        }
    }
    QProcess unread;
    start(unread, u"bash"_s,
          {u"-c"_s, u"set -o pipefail; %1 --watch --interval 0 --simulate air.json | head -n 1"_s.arg(
                        QStringLiteral(AEROLITH_SCAN))});
    const Outcome outcome = end(unread);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output.count('\n'), 1);
    EXPECT_FALSE(outcome.errors.contains("aerolith-scan:")) << outcome.errors.toStdString();
}

TEST_F(AerolithScan, RecordsWhatReplaysToTheSameRecords)
{
    write(u"hostile.json"_s,
          R"({"interface": {"name": null, "transmitPower": 7, "channels": null}, "cycles": [
        {"joined": {"ssid": null, "bssid": "02:00:00:00:00:01"}, "networks": [
            {"bssid": "02:00:00:00:00:01", "ssid": "\",\n\u0000\u001b[2J\u202e</b>&\ufffd\ufdd0", "ibss": true,
             "rssi": -2147483648, "channel": {"number": -1, "width": 2147483647}, "beaconInterval": 0,
             "security": [0, 5, 63], "phyModes": [1, 6], "country": ""},
            {"bssid": "", "ssid": "東京 🐈"}, {"ssid": "no address"}, {"bssid": "02:00:00:00:00:03"},
            {"bssid": "02:00:00:00:00:04", "ssid": "twice"}, {"bssid": "02:00:00:00:00:04", "ssid": "twice"}]},
        {"error": "\u2028\"Busy\""},
        {"networks": []},
        {"joined": {"ssid": "twice", "bssid": "02:00:00:00:00:04"},
         "networks": [{"bssid": "02:00:00:00:00:04", "ssid": "twice"}]}]})");
    write(u"off.json"_s, R"({"interface": {"powerOn": false}, "cycles": [{"networks": [{}]}]})");
    write(u"none.json"_s, R"({"interface": null, "cycles": [{"networks": []}]})");
    const QString samples = QStringLiteral("=" SAMPLE_SCENARIOS "/");
    const QString scenarios[] = {u"=hostile.json"_s,
                                 u"=off.json"_s,
                                 u"=none.json"_s,
                                 u""_s,
                                 samples + u"denied-access.json"_s,
                                 samples + u"failing-scans.json"_s};
    const auto withoutTimes = [](const QByteArray& output) {
        return QString::fromUtf8(output).remove(QRegularExpression(u"\"timestamp\":\"[^\"]*\""_s));
    };
    for (const QString& scenario : scenarios) {
        SCOPED_TRACE(scenario.toStdString());
        const QString watch = u" --watch --cycles 4 --interval 0 --simulate"_s;
        const Outcome original = run(u"--record recorded.json"_s + watch + scenario);
        const Outcome replayed = run(u"--record again.json"_s + watch + u"=recorded.json"_s);
        EXPECT_EQ(replayed.status, original.status);
        EXPECT_EQ(withoutTimes(replayed.output), withoutTimes(original.output));
        EXPECT_EQ(read(u"again.json"_s), read(u"recorded.json"_s));
        EXPECT_EQ(replayed.errors.contains("access granted"), original.errors.contains("access granted"));
    }
}

TEST_F(AerolithScan, RecordsTheScansThatHadEndedBeforeASignal)
{
    write(u"air.json"_s, QByteArray(twoCycles).replace(R"({"cycles")", R"({"scanSeconds": 0.1, "cycles")"));
    for (const QString& mode : {u"--watch"_s, u"--cycles 9 --list list.csv"_s}) {
        QProcess process;
        start(process, mode + u" --interval 0.1 --simulate air.json --record recorded.json"_s);
        process.setReadChannel(QProcess::StandardError);
        QByteArray log;
        while (log.count("Network scan completed") < 2 && process.waitForReadyRead()) {
            log += process.readAll();
        }
        kill(static_cast<pid_t>(process.processId()), SIGTERM);
        EXPECT_EQ(end(process).status, 0) << mode.toStdString();
        const QJsonArray cycles =
            QJsonDocument::fromJson(read(u"recorded.json"_s)).object()[u"cycles"_s].toArray();
        EXPECT_GE(cycles.size(), 1) << mode.toStdString();
        for (const QJsonValue& cycle : cycles) {
            EXPECT_FALSE(cycle.toObject().contains(u"error"_s))
                << "the scan that was cut short is no part of it";
        }
    }
    EXPECT_TRUE(read(u"list.csv"_s).startsWith(header));

    const Outcome refused = run(u"--simulate air.json --record nowhere/a.json"_s);
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.errors.contains("aerolith-scan: Cannot write nowhere/a.json: "));
    EXPECT_TRUE(refused.output.startsWith(header)) << "the list is still written";
}

TEST_F(AerolithScan, WritesFilesWholeOrNotAtAll)
{
    write(u"list.csv"_s, "older");
    EXPECT_EQ(run(u"--simulate air.json --list list.csv --details 02:00:00:00:00:01 one.csv"_s).output, "");
    EXPECT_EQ(read(u"list.csv"_s), header + quay + attic);
    EXPECT_TRUE(read(u"one.csv"_s).startsWith("\"Field\",\"Value\"\n\"SSID\",\"Attic\"\n"));

    EXPECT_EQ(
        run(u"--simulate air.json --list nowhere/list.csv --details 02:00:00:00:00:01 two.csv"_s).status, 1);
    EXPECT_FALSE(read(u"two.csv"_s).isEmpty()) << "the other exports are still written";
    EXPECT_EQ(run(u"--simulate air.json --list /dev/full"_s).status, 1);
}

TEST_F(AerolithScan, TellsByItsStatusWhatWentWrong)
{
    write(u"failing.json"_s,
          R"({"cycles": [{"networks": [{"bssid": "aa", "ssid": "A"}]}, {"error": "Out of reach"}]})");
    write(u"bad.json"_s, R"({"cycles": [{"networks": [{"rssi": "loud"}]}]})");
    write(u"none.json"_s, R"({"interface": null, "cycles": [{"networks": []}]})");

    const std::tuple<QString, int, QByteArray> cases[] = {
        {u"--simulate failing.json --cycles 2 --interval 0"_s, 1, "aerolith-scan: Scan failed: Out of reach"},
        {u"--nonsense"_s, 2, "aerolith-scan: Unknown argument \"--nonsense\" (try --help)"},
        {u"--simulate absent.json"_s, 2, "aerolith-scan: absent.json: No such file or directory"},
        {u"--simulate bad.json"_s, 2, "cycles[0].networks[0].rssi"},
        {u"--simulate none.json"_s, 3, "aerolith-scan: This machine has no Wi-Fi interface"},
        {u"--simulate air.json --details aa -"_s, 4, "aerolith-scan: No access point aa was heard"},
    };
    for (const auto& [arguments, status, why] : cases) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, status) << arguments.toStdString();
        EXPECT_TRUE(outcome.errors.trimmed().split('\n').last().contains(why)) << outcome.errors.constData();
    }
    EXPECT_EQ(run(u"--simulate failing.json --cycles 2 --interval 0"_s).output,
              header + "\n\"A\",\"aa\",\"-100\",\"0\",\"Unknown\",\"None\",\"Unknown\"")
        << "what was collected before is written";
}

TEST_F(AerolithScan, TellsATerminalHowFarALongRunIsAndTakesItBack)
{
    const auto errorsOnATerminal = [this](const QString& arguments) {
        int controller = -1;
        int terminal = -1;
        char name[PATH_MAX] = {};
        EXPECT_EQ(openpty(&controller, &terminal, name, nullptr, nullptr), 0);
        QProcess process;
        process.setStandardErrorFile(QString::fromLocal8Bit(name));
        start(process, arguments);
        EXPECT_EQ(end(process).status, 0);
        QByteArray bytes(1 << 16, '\0');
        EXPECT_GT(::read(controller, bytes.data(), static_cast<std::size_t>(bytes.size())), 0);
        close(terminal);
        close(controller);
        return bytes;
    };
    const QByteArray erasure = "\r\033[K";
    const QString longRun = u"--simulate air.json --cycles 2 --interval 2.1"_s;
    const QByteArray errors = errorsOnATerminal(longRun);
    EXPECT_TRUE(errors.contains("Scans: 1 of 2; access points: 2; 2 s")) << errors.constData();
    EXPECT_FALSE(errors.mid(errors.lastIndexOf(erasure)).contains("Scans:")) << errors.constData();
    EXPECT_FALSE(run(longRun).errors.contains(erasure));
}
