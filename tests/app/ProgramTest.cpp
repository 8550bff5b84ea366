// The built program from outside.

#include "support/Printing.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// Longer than anything takes; only a failure waits for it.
constexpr int patienceMilliseconds = 60'000;

class ProgramTest : public testing::Test
{
protected:
    ProgramTest()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        for (const QString& variable : {u"XDG_RUNTIME_DIR"_s, u"XDG_CONFIG_HOME"_s}) {
            environment.insert(variable, folder.path());
        }
        environment.remove(u"DISPLAY"_s);
        environment.remove(u"WAYLAND_DISPLAY"_s);
        program.setProgram(QStringLiteral(AEROLITH_PROGRAM));
        program.setProcessEnvironment(environment);
    }

    void setEnvironment(const QString& variable, const QString& value)
    {
        QProcessEnvironment environment = program.processEnvironment();
        environment.insert(variable, value);
        program.setProcessEnvironment(environment);
    }

    /// Runs it to its end; the exit status, or -1 for a crash.
    int run(const QStringList& arguments)
    {
        program.setArguments(arguments);
        program.start();
        return end();
    }

    int end()
    {
        EXPECT_TRUE(program.waitForFinished(patienceMilliseconds));
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }

    /// What it wrote to standard error, which is one line.
    QString errorLine()
    {
        const QString text = QString::fromUtf8(program.readAllStandardError());
        EXPECT_EQ(text.count(u'\n'), 1) << text.toStdString();
        return text.trimmed();
    }

    QString writeScenario(const QByteArray& json)
    {
        QFile file(folder.filePath(u"scenario.json"_s));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(json);
        return file.fileName();
    }

    QTemporaryDir folder;
    QProcess program;
};

} // namespace

TEST_F(ProgramTest, RefusesWrongArgumentsInOneLine)
{
    EXPECT_EQ(run({u"--bogus\n\u001B[2J"_s}), 2);
    EXPECT_EQ(errorLine(), u"aerolith: unknown argument --bogus\\u{a}\\u{1b}[2J"_s);
    EXPECT_EQ(program.readAllStandardOutput(), QByteArray());
}

TEST_F(ProgramTest, RefusesAScenarioThatItCannotRead)
{
    EXPECT_EQ(run({u"--simulate"_s, folder.filePath(u"missing.json"_s)}), 2);
    EXPECT_TRUE(errorLine().contains(folder.filePath(u"missing.json"_s)));

    const QString file = writeScenario(R"({"cycles": [{"networks": [{"rssi": "loud"}]}]})");
    EXPECT_EQ(run({u"--simulate"_s, file}), 2);
    const QString line = errorLine();
    EXPECT_TRUE(line.contains(file)) << line.toStdString();
    EXPECT_TRUE(line.contains(u"cycles[0].networks[0].rssi"_s)) << line.toStdString();
}

TEST_F(ProgramTest, SaysThatThereIsNoDisplay)
{
    setEnvironment(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    setEnvironment(u"DISPLAY"_s, u":4711"_s);
    EXPECT_EQ(run({u"--simulate"_s}), 1);
    EXPECT_TRUE(errorLine().startsWith(u"aerolith: cannot open the display"_s));
}

TEST_F(ProgramTest, NeedsNoDisplayToDescribeItself)
{
    setEnvironment(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    EXPECT_EQ(run({u"--help"_s}), 0);
    EXPECT_TRUE(program.readAllStandardOutput().contains("--simulate [FILE]"));
    EXPECT_EQ(run({u"--version"_s}), 0);
    EXPECT_EQ(program.readAllStandardOutput(), QByteArray("aerolith " AEROLITH_VERSION "\n"));
}

TEST_F(ProgramTest, EndsInOrderWhenASignalAsksItTo)
{
    for (const int signal : {SIGINT, SIGTERM}) {
        SCOPED_TRACE(signal);
        program.setArguments({u"--simulate"_s});
        program.start();
        // The scanner is up when it logs its first line.
        while (!program.canReadLine()) {
            ASSERT_TRUE(program.waitForReadyRead(patienceMilliseconds));
        }
        EXPECT_EQ(program.readLine(), QByteArray("Location access granted.\n"));
        kill(static_cast<pid_t>(program.processId()), signal);
        EXPECT_EQ(end(), 0);
    }
}

} // namespace aerolith
