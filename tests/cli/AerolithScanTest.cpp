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

#include <algorithm>
#include <climits>
#include <csignal>
#include <pty.h>
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
    Outcome run(const QString& arguments)
    {
        QProcess process;
        start(process, arguments);
        return end(process);
    }

    void start(QProcess& process, const QString& arguments)
    {
        process.setProgram(QStringLiteral(AEROLITH_SCAN));
        start(process, arguments.split(u' ', Qt::SkipEmptyParts));
    }

    void start(QProcess& process, const QStringList& arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_CONFIG_HOME"_s, m_folder.path());
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder.path());
        process.setArguments(arguments);
        process.start();
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

constexpr auto header = R"~("SSID","BSSID","RSSI (dBm)","Channel","Band","Security","Country")~";
constexpr auto attic = R"("Attic","02:00:00:00:00:01","-40","36","5 GHz","None","US")";
constexpr auto quay = R"("Quay","02:00:00:00:00:02","-70","6","2.4 GHz","None","Unknown")";

QByteArray lines(std::initializer_list<const char*> texts)
{
    QByteArrayList list;
    for (const char* text : texts) {
        list.append(text);
    }
    return list.join('\n');
}

} // namespace

TEST_F(AerolithScan, WritesTheListAloneToStandardOutput)
{
    write(u"air.json"_s, twoCycles);
    const Outcome outcome = run(u"--simulate air.json"_s);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, lines({header, quay, attic})) << "the joined network first";
    // Two threads write these: only the first and the last have their places.
    QByteArrayList log = outcome.errors.trimmed().split('\n');
    EXPECT_EQ(log.takeFirst(), "Location access granted.");
    EXPECT_EQ(log.takeLast(), "Network scan completed");
    std::sort(log.begin(), log.end());
    EXPECT_EQ(log, QByteArrayList({"Current network: Quay", "Found 2 networks", "Starting network scan..."}));
}

TEST_F(AerolithScan, SortsLastAndHonoursTheStoredSettings)
{
    write(u"air.json"_s, twoCycles);
    write(settings,
          "[[[\n\xff\xfe=%%%\nscanInterval=soon\nhistoryLimit=1e99\nhiddenBSSIDs=@Variant(\\0\\0)\n");
    const Outcome sorted = run(u"--simulate air.json --cycles 2 --interval 0 --sort ssid --visible-only"_s);
    EXPECT_EQ(sorted.status, 0) << "with nonsense for settings";
    EXPECT_EQ(sorted.output.split('\n').size(), 3);
    write(u"apart.json"_s, QByteArray(twoCycles).replace(
                               R"({"ssid": "Quay", "bssid": "02:00:00:00:00:02"}, "n)", R"(null, "n)"));
    EXPECT_EQ(run(u"--simulate apart.json --sort channel"_s).output, lines({header, quay, attic}));
    write(settings, "hiddenBSSIDs=\"@ByteArray([\\\"02:00:00:00:00:02\\\"])\"\nhistoryLimit=1\n");
    EXPECT_EQ(run(u"--simulate air.json --visible-only"_s).output, lines({header, attic}));
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

    struct Line
    {
        int cycle;
        bool heard;
        int rssi;
        bool joined;
    };

    const Line expected[] = {
        {1, true, -70, true}, {1, true, -40, false}, {3, true, -42, true}, {3, false, -70, true}};
    for (qsizetype i = 0; i < 4; ++i) {
        const QJsonObject line = QJsonDocument::fromJson(written[i]).object();
        EXPECT_EQ(line[u"cycle"_s], QJsonValue(expected[i].cycle)) << written[i].toStdString();
        EXPECT_EQ(line[u"heard"_s], QJsonValue(expected[i].heard));
        EXPECT_EQ(line[u"rssi"_s], QJsonValue(expected[i].rssi));
        EXPECT_EQ(line[u"isCurrentNetwork"_s], QJsonValue(expected[i].joined));
    }
    EXPECT_EQ(QJsonDocument::fromJson(written[1]).object()[u"ssidBytes"_s], QJsonValue(u"410a62"_s));
    EXPECT_EQ(run(u"--simulate air.json --watch --cycles 2 --interval 0"_s).status, 1);
    EXPECT_EQ(run(u"--simulate --watch --interval 0 --list a.csv"_s).status, 2);
}

TEST_F(AerolithScan, WatchesUntilInterruptedOrNobodyReads)
{
    // The scan that is interrupted would go on for a day.
    write(u"slow.json"_s, R"({"scanSeconds": 86400, "cycles": [{"networks": []}]})");
    write(u"air.json"_s, twoCycles);
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
    unread.setProgram(u"bash"_s);
    start(unread, {u"-c"_s, u"set -o pipefail; %1 --watch --interval 0 --simulate air.json | head -n 1"_s.arg(
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
    const QString samples = QStringLiteral(SAMPLE_SCENARIOS);
    const QString scenarios[] = {u"=hostile.json"_s,
                                 u"=off.json"_s,
                                 u"=none.json"_s,
                                 u""_s,
                                 u"="_s + samples + u"/moving-away.json"_s,
                                 u"="_s + samples + u"/denied-access.json"_s,
                                 u"="_s + samples + u"/failing-scans.json"_s};
    const auto withoutTimes = [](const QByteArray& output) {
        return QString::fromUtf8(output).remove(QRegularExpression(u"\"timestamp\":\"[^\"]*\""_s));
    };
    for (const QString& scenario : scenarios) {
        const QString watch = u" --watch --cycles 4 --interval 0 --simulate"_s;
        const Outcome original = run(u"--record recorded.json"_s + watch + scenario);
        const Outcome replayed = run(u"--record again.json"_s + watch + u"=recorded.json"_s);
        EXPECT_EQ(replayed.status, original.status) << scenario.toStdString();
        EXPECT_EQ(withoutTimes(replayed.output), withoutTimes(original.output)) << scenario.toStdString();
        EXPECT_EQ(read(u"again.json"_s), read(u"recorded.json"_s)) << scenario.toStdString();
        EXPECT_EQ(replayed.errors.contains("Location access granted"),
                  original.errors.contains("Location access granted"));
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
    write(u"air.json"_s, twoCycles);
    write(u"list.csv"_s, "older");
    EXPECT_EQ(run(u"--simulate air.json --list list.csv --details 02:00:00:00:00:01 one.csv"_s).output, "");
    EXPECT_EQ(read(u"list.csv"_s), lines({header, quay, attic}));
    EXPECT_TRUE(read(u"one.csv"_s).startsWith("\"Field\",\"Value\"\n\"SSID\",\"Attic\"\n"));

    const Outcome refused =
        run(u"--simulate air.json --list nowhere/list.csv --details 02:00:00:00:00:01 two.csv"_s);
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(
        refused.errors.endsWith("aerolith-scan: Cannot write nowhere/list.csv: No such file or directory\n"));
    EXPECT_FALSE(read(u"two.csv"_s).isEmpty()) << "the other exports are still written";
    EXPECT_EQ(run(u"--simulate air.json --list /dev/full"_s).status, 1);
}

TEST_F(AerolithScan, TellsByItsStatusWhatWentWrong)
{
    write(u"air.json"_s, twoCycles);
    write(u"failing.json"_s,
          R"({"cycles": [{"networks": [{"bssid": "aa", "ssid": "A"}]}, {"error": "Out of reach"}]})");
    write(u"bad.json"_s, R"({"cycles": [{"networks": [{"rssi": "loud"}]}]})");
    write(u"none.json"_s, R"({"interface": null, "cycles": [{"networks": []}]})");

    struct Case
    {
        QString arguments;
        int status;
        QByteArray lastLine;
    };

    const Case cases[] = {
        {u"--simulate failing.json --cycles 2 --interval 0"_s, 1, "aerolith-scan: Scan failed: Out of reach"},
        {u"--nonsense"_s, 2, "aerolith-scan: Unknown argument \"--nonsense\" (try --help)"},
        {u"--simulate absent.json"_s, 2, "aerolith-scan: absent.json: No such file or directory"},
        {u"--simulate none.json"_s, 3, "aerolith-scan: This machine has no Wi-Fi interface"},
        {u"--simulate air.json --details aa -"_s, 4, "aerolith-scan: No access point aa was heard"},
    };
    for (const Case& expected : cases) {
        const Outcome outcome = run(expected.arguments);
        EXPECT_EQ(outcome.status, expected.status) << expected.arguments.toStdString();
        EXPECT_EQ(outcome.errors.trimmed().split('\n').last(), expected.lastLine);
    }
    const Outcome bad = run(u"--simulate bad.json"_s);
    EXPECT_EQ(bad.status, 2);
    EXPECT_TRUE(bad.errors.contains("bad.json") && bad.errors.contains("cycles[0].networks[0].rssi"))
        << bad.errors.toStdString();
    EXPECT_EQ(run(u"--simulate failing.json --cycles 2 --interval 0"_s).output,
              QByteArray(header) + "\n\"A\",\"aa\",\"-100\",\"0\",\"Unknown\",\"None\",\"Unknown\"")
        << "what was collected before is written";
    EXPECT_EQ(run(u"--help"_s).status, 0);
    EXPECT_EQ(run(u"--version"_s).output.left(14), "aerolith-scan ");
}

TEST_F(AerolithScan, TellsATerminalHowFarALongRunIsAndTakesItBack)
{
    write(u"air.json"_s, twoCycles);
    const auto errorsOnATerminal = [this](const QString& arguments) {
        int controller = -1;
        int terminal = -1;
        char name[PATH_MAX] = {};
        EXPECT_EQ(openpty(&controller, &terminal, name, nullptr, nullptr), 0);
        QProcess process;
        process.setStandardErrorFile(QString::fromLocal8Bit(name));
        start(process, arguments);
        EXPECT_EQ(end(process).status, 0);
        QByteArray bytes(1 << 16, Qt::Uninitialized);
        bytes.resize(
            std::max<ssize_t>(0, ::read(controller, bytes.data(), static_cast<std::size_t>(bytes.size()))));
        close(terminal);
        close(controller);
        return bytes;
    };
    const QByteArray erasure = "\r\033[K";
    EXPECT_FALSE(errorsOnATerminal(u"--simulate air.json"_s).contains(erasure));

    const QString longRun = u"--simulate air.json --cycles 2 --interval 2.1"_s;
    const QByteArray errors = errorsOnATerminal(longRun);
    EXPECT_TRUE(errors.contains("Scans: 1 of 2; access points: 2; 2 s")) << errors.constData();
    EXPECT_FALSE(errors.mid(errors.lastIndexOf(erasure)).contains("Scans:")) << errors.constData();
    EXPECT_FALSE(run(longRun).errors.contains(erasure));
}
