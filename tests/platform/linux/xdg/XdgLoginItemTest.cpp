#include "platform/linux/xdg/XdgLoginItem.h"

#include "support/Files.h"
#include "support/Printing.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

class XdgLoginItemTest : public testing::Test
{
protected:
    [[nodiscard]] QByteArray entry() const { return bytesIn(path); }

    QTemporaryDir config;
    QString path = config.filePath(u"autostart/org.aerolith.Aerolith.desktop"_s);
    XdgLoginItem item{path, u"/usr/bin/aerolith"_s};
};

} // namespace

TEST_F(XdgLoginItemTest, WritesAnEntryThatDesktopsRead)
{
    EXPECT_FALSE(item.isEnabled());
    EXPECT_FALSE(item.setEnabled(false));
    EXPECT_FALSE(QFileInfo::exists(path)) << "off already";

    EXPECT_FALSE(item.setEnabled(true));
    EXPECT_TRUE(item.isEnabled());
    for (const char* line : {"[Desktop Entry]\n", "\nType=Application\n", "\nName=Aerolith\n",
                             "\nExec=\"/usr/bin/aerolith\"\n"}) {
        EXPECT_TRUE(("\n" + entry()).contains(line)) << line;
    }
    EXPECT_FALSE(item.setEnabled(false));
    EXPECT_FALSE(item.isEnabled());
    EXPECT_TRUE(entry().contains("\nHidden=true\n"));

    qunsetenv("XDG_CONFIG_HOME");
    qputenv("HOME", "/home/ada");
    EXPECT_EQ(XdgLoginItem::userPath(), u"/home/ada/.config/autostart/org.aerolith.Aerolith.desktop"_s);
}

TEST_F(XdgLoginItemTest, QuotesAnyPath)
{
    const std::pair<QString, QByteArray> cases[] = {
        {u"/opt/My Apps/a'b"_s, R"("/opt/My Apps/a'b")"},
        {u"/opt/50%F \"q\""_s, R"(sh -c "exec \\"\\$0\\"" "/opt/50%%F \\"q\\"")"},
        {u"/opt/$HOME`id`"_s, R"("/opt/\\$HOME\\`id\\`")"},
        {u"/opt/back\\slash"_s, R"("/opt/back\\\\slash")"},
        {u"/opt/ü\nHidden=true\t"_s, "\"/opt/ü\\nHidden=true\\t\""},
    };
    for (const auto& [program, exec] : cases) {
        EXPECT_FALSE(XdgLoginItem(path, program).setEnabled(true));
        EXPECT_TRUE(entry().contains("\nExec=" + exec + '\n')) << entry().toStdString();
    }
}

TEST_F(XdgLoginItemTest, KeepsWhatElseIsInAnEntry)
{
    putFile(path,
            "# mine\n[Desktop Entry]\nName=Mine\nHidden = true\nExec=/old --quiet\nExec=/older\n"
            "X-KDE-Delay=5\nX-GNOME-Autostart-enabled=false\n\n[Desktop Action x]\nExec=/other\nHidden=true");
    EXPECT_FALSE(item.isEnabled());
    EXPECT_FALSE(item.setEnabled(true));
    EXPECT_TRUE(item.isEnabled());
    EXPECT_EQ(entry(), QByteArray("# mine\n[Desktop Entry]\nName=Mine\nHidden=false\n"
                                  "Exec=\"/usr/bin/aerolith\"\nX-KDE-Delay=5\n"
                                  "X-GNOME-Autostart-enabled=true\n\n[Desktop Action x]\nExec=/other\n"
                                  "Hidden=true"));
}

TEST_F(XdgLoginItemTest, ReadsTheStateThatOthersHaveSet)
{
    const std::pair<QByteArray, bool> cases[] = {
        {"[Desktop Entry]\nExec=a\n", true},
        {"[Desktop Entry]\nExec=a\nHidden=false\n", true},
        {"[Desktop Entry]\nHidden=false\nHidden=true\n", false},
        {"[Desktop Entry]\r\nHidden=true\r\n", false},
        {"[Desktop Entry]\nX-GNOME-Autostart-enabled=false\n", false},
        {"[Desktop Entry]\n[Other]\nHidden=true\n", true},
        {"Hidden=false\n", false},
        {"", false},
    };
    for (const auto& [contents, enabled] : cases) {
        putFile(path, contents);
        EXPECT_EQ(item.isEnabled(), enabled) << contents.toStdString();
        for (const bool wanted : {true, false}) {
            EXPECT_FALSE(item.setEnabled(wanted));
            EXPECT_EQ(item.isEnabled(), wanted) << entry().toStdString();
        }
    }
}

TEST_F(XdgLoginItemTest, SaysWhyItStaysAsItWas)
{
    QDir().mkpath(path);
    EXPECT_FALSE(item.isEnabled());
    EXPECT_EQ(item.setEnabled(true)->description, u"%1 is not a file"_s.arg(path));

    XdgLoginItem blocked(u"/proc/autostart/entry.desktop"_s, u"/usr/bin/aerolith"_s);
    EXPECT_EQ(blocked.setEnabled(true)->description, u"Cannot create the folder /proc/autostart"_s);
    EXPECT_FALSE(blocked.isEnabled());
}

} // namespace aerolith
