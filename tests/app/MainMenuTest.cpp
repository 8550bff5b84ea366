#include "app/MainMenu.h"

#include "app/SupportMail.h"
#include "platform/Updater.h"
#include "ui/main/WindowDriver.h"

#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>

#include <gtest/gtest.h>

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// Checks for nothing.
class IdleUpdater : public Updater
{
public:
    void start() override {}

    [[nodiscard]] std::unique_ptr<Observation>
    observeCanCheckForUpdates(std::function<void(bool)> observer) override
    {
        observer(true);
        return std::make_unique<Observation>();
    }

    void checkForUpdates() override {}
};

class MainMenuTest : public IdleUpdater, public WindowDriver
{
};

} // namespace

TEST_F(MainMenuTest, OffersNothingElse)
{
    addMainMenu(window, {.updater = *this, .workspace = desktop.workspace, .log = engine.log});
    QStringList menus;
    for (const QAction* menu : window.menuBar()->actions()) {
        QStringList entries{menu->text()};
        for (const QAction* entry : menu->menu()->actions()) {
            entries.append(entry->isSeparator() ? u"-"_s : entry->text());
        }
        menus.append(entries.join(u'|').remove(u'&'));
    }
    EXPECT_EQ(menus, QStringList({u"Aerolith|About Aerolith|-|Check for Updates\u2026|-|Quit"_s,
                                  u"View|Toggle Sidebar"_s, u"Help|Contact Support"_s}));
    window.menuBar()->actions().last()->menu()->actions().first()->trigger();
    EXPECT_EQ(desktop.workspace.urls.size(), 1);
}

TEST(SupportMail, EncodesAsAQueryDoes)
{
    EXPECT_EQ(queryEncoded(u"aZ09!$&'()*+,-./:;=?@_~"_s), "aZ09!$&'()*+,-./:;=?@_~");
    EXPECT_EQ(queryEncoded(u" \n\"#%<>[]^`{|}é"_s), "%20%0A%22%23%25%3C%3E%5B%5D%5E%60%7B%7C%7D%C3%A9");
}

TEST(ContactSupport, HandsTheMailToTheDesktopAndLogsARefusal)
{
    FakeWorkspace workspace;
    RecordingLog log;
    contactSupport(workspace, log);
    ASSERT_EQ(workspace.urls.size(), 1);
    const QByteArray mail = workspace.urls.first().toEncoded();
    EXPECT_TRUE(mail.startsWith("mailto:"));
    EXPECT_TRUE(mail.endsWith("?subject=Aerolith%20Support%20Request"
                              "&body=Hello%20Aerolith%20Team,%0A%0A"
                              "I%20need%20assistance%20with%20the%20following:%0A%0A"))
        << mail.constData();

    workspace.refusal = Error{u"no mail program"_s};
    contactSupport(workspace, log);
    EXPECT_EQ(log.take(), QStringList{u"Failed to open the support mail: no mail program"_s});
}

TEST(About, BreaksItsLinesWhereTheTextDoes)
{
    QWidget window;
    window.show();
    showAbout(window);
    const auto* about = window.findChild<QDialog*>(u"about"_s);
    ASSERT_TRUE(about != nullptr && about->isVisible());

    int longest = 0;
    for (const auto* label : about->findChildren<QLabel*>()) {
        const int wanted = label->fontMetrics().size(0, label->text()).width();
        EXPECT_GE(label->width(), wanted) << label->text().toStdString();
        longest = std::max(longest, wanted);
    }
    EXPECT_GT(longest, 0);
}

} // namespace aerolith
