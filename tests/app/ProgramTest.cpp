// The built program from outside.

#include "support/Printing.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        for (const QString& variable : {u"XDG_RUNTIME_DIR"_s, u"XDG_CONFIG_HOME"_s}) {
            environment.insert(variable, folder.path());
        }
        environment.remove(u"DISPLAY"_s);
        environment.remove(u"WAYLAND_DISPLAY"_s);
    }

    /// Runs it to its end; the exit status, or -1 for a crash.
    int run(const QStringList& arguments)
    {
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(AEROLITH_PROGRAM), arguments);
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

    QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QProcess program;
};

} // namespace

TEST_F(ProgramTest, RefusesWrongArgumentsInOneLine)
{
    EXPECT_EQ(run({u"--bogus\n\u001B[2J"_s}), 2);
    EXPECT_EQ(errorLine(), uR"(aerolith: Unknown argument "--bogus\u{a}\u{1b}[2J" (try --help))"_s);
    EXPECT_EQ(program.readAllStandardOutput(), QByteArray());
    EXPECT_EQ(run({u"--simulate"_s, folder.filePath(u"missing.json"_s)}), 2);
    EXPECT_TRUE(errorLine().contains(folder.filePath(u"missing.json"_s)));
}

TEST_F(ProgramTest, NeedsADisplayForItsWindowAlone)
{
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    environment.insert(u"DISPLAY"_s, u":4711"_s);
    EXPECT_EQ(run({u"--simulate"_s}), 1);
    EXPECT_TRUE(errorLine().startsWith(u"aerolith: cannot open the display"_s));
    EXPECT_EQ(run({u"--help"_s}), 0);
    EXPECT_TRUE(program.readAllStandardOutput().contains("--simulate [FILE]"));
    EXPECT_EQ(run({u"--version"_s}), 0);
    EXPECT_EQ(program.readAllStandardOutput(), QByteArray("aerolith " AEROLITH_VERSION "\n"));
}

} // namespace aerolith
