#include "ui/update/UpdaterController.h"

#include "support/Printing.h"
#include "ui/common/SelectableText.h"
#include "ui/update/CheckForUpdatesView.h"
#include "update/SettingKeys.h"
#include "update/UpdateWorld.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

const QByteArray program = QByteArray("new program").repeated(100'000);

/// The dialog as the user sees it, around a real updater and a real server.
class UpdaterControllerTest : public testing::Test, public UpdateWorld
{
protected:
    UpdaterControllerTest()
    {
        announce("1.1", program, "<![CDATA[<ul><li>Faster</li></ul>]]>");
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    UpdateDialog* dialog() const { return window.findChild<UpdateDialog*>(); }

    template <typename Widget>
    Widget& child(const QString& name) const
    {
        auto* found = dialog()->findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return *found;
    }

    QString heading() const { return dialog() == nullptr ? QString() : child<QLabel>(u"heading"_s).text(); }

    QString message() const { return child<SelectableText>(u"message"_s).toPlainText(); }

    testing::AssertionResult shows(const QString& expected) const
    {
        return handleEventsUntil([&] { return heading() == expected; })
                   ? testing::AssertionSuccess()
                   : testing::AssertionFailure() << heading().toStdString();
    }

    bool isSeen(const QString& part) const { return child<QWidget>(part).isVisible(); }

    void press(Qt::Key key) const
    {
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog()));
        QTest::keyClick(QApplication::focusWidget(), key);
    }

    /// Closes the dialog by this key. The user is back in the window, as a window manager has it.
    void close(Qt::Key key)
    {
        press(key);
        EXPECT_TRUE(handleEventsUntil([this] { return dialog() == nullptr; }));
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QWidget window;
    std::optional<UpdaterController> controller{std::in_place, options(), surroundings()};
};

} // namespace

TEST_F(UpdaterControllerTest, LeadsFromTheCheckToTheFile)
{
    server.serve(u"/1.1.bin"_s, program);
    controller->updater().checkForUpdates();
    ASSERT_TRUE(shows(u"Checking for updates\u2026"_s));
    EXPECT_TRUE(isSeen(u"busy"_s) && !isSeen(u"download"_s));
    const QPointer<UpdateDialog> first = dialog();
    const int height = first->height();

    ASSERT_TRUE(shows(u"Aerolith 1.1 is available"_s));
    EXPECT_EQ(message(), u"You have version 1.0. The download is 1.1 MB."_s);
    EXPECT_EQ(child<QPlainTextEdit>(u"notes"_s).toPlainText(), u"\u2022 Faster"_s);
    EXPECT_FALSE(isSeen(u"busy"_s) || dialog()->isModal());
    handleWaitingEvents();
    EXPECT_GT(first->height(), height + 100) << "as tall as what is in it";

    press(Qt::Key_Return);
    ASSERT_TRUE(shows(u"Downloading Aerolith 1.1\u2026"_s));
    press(Qt::Key_Return);
    ASSERT_TRUE(shows(u"Aerolith 1.1 is downloaded"_s)) << "not cancelled by a key pressed twice";
    const QString file = QDir(options().folder).filePath(u"1.1.bin"_s);
    EXPECT_EQ(message(), u"Its signature is right. It was saved as\n%1"_s.arg(file));
    EXPECT_EQ(workspace.folders, QStringList{options().folder});
    EXPECT_EQ(dialog(), first) << "one dialog for all";
    close(Qt::Key_Return);
}

TEST_F(UpdaterControllerTest, IsAskedByAMenuItemThatIsDisabledMeanwhile)
{
    std::optional<CheckForUpdatesView> item(std::in_place, controller->updater());
    EXPECT_TRUE(item->isEnabled());
    item->trigger();
    ASSERT_TRUE(shows(u"Checking for updates\u2026"_s));
    EXPECT_FALSE(item->isEnabled());
    EXPECT_FALSE(CheckForUpdatesView(controller->updater()).isEnabled()) << "from the start";
    ASSERT_TRUE(shows(u"Aerolith 1.1 is available"_s));
    EXPECT_TRUE(item->isEnabled());

    item.reset();
    controller->updater().checkForUpdates();
    EXPECT_TRUE(shows(u"Checking for updates\u2026"_s)) << "an item that is gone hears no more of it";
}

TEST_F(UpdaterControllerTest, CancelsADownload)
{
    server.answer(u"/1.1.bin"_s, "HTTP/1.1 200 OK\r\n\r\n" + program.first(550'000),
                  HttpsServer::Behind::silence);
    controller->updater().checkForUpdates();
    ASSERT_TRUE(shows(u"Aerolith 1.1 is available"_s));
    press(Qt::Key_Return);
    ASSERT_TRUE(shows(u"Downloading Aerolith 1.1\u2026"_s));
    EXPECT_TRUE(handleEventsUntil([this] { return child<QProgressBar>(u"progress"_s).value() == 500; }));
    EXPECT_EQ(message(), u"550.0 kB of 1.1 MB"_s);
    close(Qt::Key_Escape);
    EXPECT_TRUE(QDir(options().folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST_F(UpdaterControllerTest, ShowsWhateverTheFeedHoldsAsPlainText)
{
    announce(QByteArray("1.1") + QByteArray(90, '7'), program,
             "&lt;p&gt;&amp;lt;b&amp;gt;&amp;#x202E;x&lt;/p&gt;&lt;img "
             "src='https://example.org/'&gt;&amp;#7;&lt;br&gt;y");
    controller->updater().checkForUpdates();
    ASSERT_TRUE(shows(u"Aerolith 1.1%1\u2026 is available"_s.arg(u"7"_s.repeated(21))));
    EXPECT_EQ(child<QPlainTextEdit>(u"notes"_s).toPlainText(), u"<b>\uFFFDx\n\ny"_s);
    close(Qt::Key_Escape);

    server.serve(feedPath, "<a><b></" + QString(QChar(0x202E)).toUtf8() + "></a>");
    controller->updater().checkForUpdates();
    ASSERT_TRUE(shows(u"Updates could not be checked"_s));
    EXPECT_FALSE(message().contains(QChar(0x202E)));
    EXPECT_FALSE(isSeen(u"notes"_s) || isSeen(u"download"_s));
    close(Qt::Key_Return);
}

TEST_F(UpdaterControllerTest, LetsTheUserDecideOnAutomaticChecks)
{
    announce("0.9", program);
    controller->updater().checkForUpdates();
    ASSERT_TRUE(shows(u"Aerolith is up to date"_s));
    auto& automatically = child<QCheckBox>(u"checkAutomatically"_s);
    EXPECT_FALSE(automatically.isChecked());
    QTest::keyClick(&automatically, Qt::Key_Space);
    EXPECT_EQ(defaults.integerForKey(SettingKeys::automaticUpdateChecks), 1);
    close(Qt::Key_Escape);

    announce("1.1", program);
    main.advance(std::chrono::hours(24));
    ASSERT_TRUE(shows(u"Aerolith 1.1 is available"_s));
    EXPECT_TRUE(child<QCheckBox>(u"checkAutomatically"_s).isChecked());
    EXPECT_TRUE(dialog()->testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(UpdaterControllerTest, OutlivesTheWindowThatItsDialogIsOver)
{
    auto other = std::make_unique<QWidget>();
    other->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(other.get()));
    controller->updater().checkForUpdates();
    ASSERT_TRUE(handleEventsUntil([&] { return other->findChild<UpdateDialog*>() != nullptr; }));
    other.reset();
    window.activateWindow();
    EXPECT_TRUE(shows(u"Aerolith 1.1 is available"_s));
    controller.reset();
    EXPECT_EQ(dialog(), nullptr);
}

} // namespace aerolith
