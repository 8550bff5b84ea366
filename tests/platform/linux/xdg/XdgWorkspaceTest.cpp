#include "platform/linux/xdg/XdgWorkspace.h"

#include "support/Files.h"
#include "support/Printing.h"

#include <QDeadlineTimer>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// A desktop whose programs write down how they were called.
class XdgWorkspaceTest : public testing::Test
{
protected:
    XdgWorkspaceTest()
    {
        qputenv("PATH", bin.path().toUtf8());
        qputenv("XDG_CURRENT_DESKTOP", "GNOME");
    }

    ~XdgWorkspaceTest() override { qputenv("PATH", oldPath); }

    void install(const QString& program)
    {
        const QByteArray called = QFile::encodeName(calledFile());
        putFile(bin.filePath(program), "#!/bin/sh\nprintf '%s\\n' \"${0##*/}\" \"$@\" >'" + called +
                                           ".new'\n" + "/bin/mv '" + called + ".new' '" + called +
                                           "'\n/bin/sleep 3\n");
        QFile::setPermissions(bin.filePath(program), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// The program and the arguments of the call, one in a line; waits for it.
    QString call() const
    {
        for (const QDeadlineTimer deadline(5000); !QFile::exists(calledFile()) && !deadline.hasExpired();) {
            QThread::msleep(5);
        }
        const QString lines = QString::fromUtf8(bytesIn(calledFile())).trimmed();
        QFile::remove(calledFile());
        return lines;
    }

    [[nodiscard]] QString calledFile() const { return bin.filePath(u"called"_s); }

    const QByteArray oldPath = qgetenv("PATH");
    QTemporaryDir bin;
    XdgWorkspace workspace;
};

} // namespace

TEST_F(XdgWorkspaceTest, StartsWhatIsThereAndDoesNotWaitForIt)
{
    const QDeadlineTimer beforeTheyEnd(3000);
    for (const auto& editor : {u"nm-connection-editor"_s, u"gnome-control-center\nnetwork"_s}) {
        install(editor.section(u'\n', 0, 0));
        EXPECT_FALSE(workspace.openSettings(SettingsPage::network));
        EXPECT_EQ(call(), editor) << "the desktop's own comes first";
    }
    install(u"wireshark"_s);
    EXPECT_FALSE(workspace.diagnosticsObstacle());
    EXPECT_FALSE(workspace.openDiagnostics());
    EXPECT_EQ(call(), u"wireshark"_s);

    install(u"xdg-open"_s);
    EXPECT_FALSE(workspace.openUrl(QUrl(u"mailto:help@example.org?subject=A b&body=$(date)"_s)));
    EXPECT_EQ(call(), u"xdg-open\nmailto:help@example.org?subject=A%20b&body=$(date)"_s);
    ASSERT_TRUE(QDir(bin.path()).mkdir(u"my files"_s));
    EXPECT_FALSE(workspace.openFolder(bin.filePath(u"my files"_s)));
    EXPECT_EQ(call(), u"xdg-open\n%1"_s.arg(bin.filePath(u"my files"_s)));
    EXPECT_FALSE(beforeTheyEnd.hasExpired());
}

TEST_F(XdgWorkspaceTest, SaysWhyNothingOpens)
{
    const auto noSettings = u"Cannot open the network settings: not installed: %1nm-connection-editor"_s;
    for (const auto& [desktop, programs] :
         {std::pair("Budgie:GNOME", u"budgie-control-center, gnome-control-center, "_s), {"::", u""_s}}) {
        qputenv("XDG_CURRENT_DESKTOP", desktop);
        EXPECT_EQ(workspace.openSettings(SettingsPage::network)->description, noSettings.arg(programs));
    }
    EXPECT_EQ(workspace.openDiagnostics()->description, workspace.diagnosticsObstacle()->description);
    EXPECT_TRUE(workspace.openUrl(QUrl(u"https://example.org"_s)));
    install(u"xdg-open"_s);
    for (const QString& url : {u"file:///etc/passwd"_s, u"--help"_s, u"javascript:alert(1)"_s, QString()}) {
        EXPECT_TRUE(workspace.openUrl(QUrl(url))) << url.toStdString();
    }
    for (const QString& path : {bin.filePath(u"xdg-open"_s), bin.filePath(u"missing"_s), u"."_s, QString()}) {
        EXPECT_EQ(workspace.openFolder(path)->description, u"Cannot open %1: not a folder"_s.arg(path));
    }
    EXPECT_FALSE(QFile::exists(calledFile()));
}

} // namespace aerolith
