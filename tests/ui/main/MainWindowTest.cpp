#include "ui/main/MainWindow.h"

#include "export/NetworkCsv.h"
#include "ui/main/WindowDriver.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QMenu>
#include <QTextEdit>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

class MainWindowTest : public WindowDriver
{
protected:
    MainWindowTest() { scan(air); }

    /// The open menu of a row.
    QMenu* menu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

    void askForMenu(const QString& bssid)
    {
        const QPoint position = middleOf(rowOf(bssid));
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, list.viewport()->mapToGlobal(position));
        QCoreApplication::sendEvent(list.viewport(), &event);
    }

    /// Chooses the only entry of the open menu by the keyboard.
    void choose(const QString& entry)
    {
        ASSERT_NE(menu(), nullptr);
        ASSERT_EQ(menu()->actions().size(), 1);
        EXPECT_EQ(menu()->actions().first()->text(), entry);
        QTest::keyClick(menu(), Qt::Key_Down);
        QTest::keyClick(menu(), Qt::Key_Return);
        settle();
    }

    bool showsBackdrop() { return child(u"backdrop"_s).isVisible(); }

    QList<CWNetwork> air{network(u"a"_s, u"Alpha"_s, -70), network(u"b"_s, u"beta"_s, -40),
                         network(u"c"_s, u"Cafe [*] & <b>Bar</b>\n"_s, -50)};
};

} // namespace

TEST_F(MainWindowTest, ShowsTheDetailsOfTheSelectedNetworkWhileItIsListed)
{
    EXPECT_TRUE(showsBackdrop());
    EXPECT_EQ(window.windowTitle(), u"Aerolith"_s);
    click(u"c"_s);
    EXPECT_FALSE(showsBackdrop());
    EXPECT_TRUE(child(u"networkDetailView"_s).isVisible());
    EXPECT_EQ(window.windowTitle(), u"Cafe [*][*] & <b>Bar</b>\uFFFD"_s) << "shown as \"[*]\"";

    engine.scanner->setShowHiddenNetworks(false);
    engine.scanner->hideNetwork(u"c"_s);
    settle();
    EXPECT_TRUE(showsBackdrop());
    EXPECT_EQ(window.windowTitle(), u"Aerolith"_s);
    EXPECT_EQ(engine.selection.selectedBSSID(), u"c"_s);

    press(u"filter"_s);
    EXPECT_FALSE(showsBackdrop());
    engine.location.change(CLAuthorizationStatus::denied);
    settle();
    EXPECT_TRUE(showsBackdrop()) << "denied access clears the selection";
}

TEST_F(MainWindowTest, HidesAndShowsARowByItsMenu)
{
    click(u"a"_s);
    askForMenu(u"b"_s);
    choose(u"Hide Network"_s);
    EXPECT_TRUE(engine.scanner->isHidden(u"b"_s));
    EXPECT_EQ(engine.selection.selectedBSSID(), u"a"_s);

    list.setFocus();
    list.selectionModel()->setCurrentIndex(list.model()->index(rowOf(u"b"_s), 0),
                                           QItemSelectionModel::NoUpdate);
    QTest::keyClick(&list, Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(menu(), nullptr);
    EXPECT_TRUE(list.visualRect(list.currentIndex())
                    .contains(list.viewport()->mapFromGlobal(menu()->geometry().topLeft())));
    menu()->close();
    QTest::keyClick(&list, Qt::Key_Menu);
    choose(u"Show Network"_s);
    EXPECT_FALSE(engine.scanner->isHidden(u"b"_s));

    click(u"c"_s, {}, Qt::RightButton);
    EXPECT_EQ(engine.selection.selectedBSSID(), u"a"_s) << "asking for a menu selects nothing";
}

TEST_F(MainWindowTest, ExportsTheListAsItIsWhenConfirmed)
{
    press(u"exportList"_s);
    EXPECT_TRUE(files.suggested().endsWith(u"/wifi_networks.csv"_s));
    scan({network(u"d"_s, u"Delta"_s, -30)});
    EXPECT_EQ(files.confirm(), networkListCSV(engine.scanner->networks()).toUtf8());
}

TEST_F(MainWindowTest, BringsTheSidebarBackAsWideAsItWas)
{
    auto& sidebar = child(u"sidebar"_s);
    child<QSplitter>(u"content"_s).setSizes({400, 400});
    ASSERT_EQ(sidebar.width(), 400);
    press(u"toggleSidebar"_s);
    EXPECT_FALSE(sidebar.isVisible());
    window.resize(1200, 700);
    press(u"toggleSidebar"_s);
    EXPECT_EQ(sidebar.width(), 400);
    window.resize(10, 10);
    EXPECT_EQ(child(u"content"_s).size(), QSize(800, 500)) << "room for both columns";
}

TEST_F(MainWindowTest, OpensEachSheetAnewOverItselfAlone)
{
    // The first value in it, or nothing.
    const auto opened = [this](const QString& button) {
        press(button);
        auto* sheet = window.findChild<QDialog*>();
        EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
        const auto* value = sheet->findChild<QTextEdit*>();
        const QString text = value != nullptr ? value->toPlainText() : QString();
        QTest::keyClick(sheet, Qt::Key_Escape);
        settle();
        EXPECT_EQ(window.findChild<QDialog*>(), nullptr);
        return text;
    };
    opened(u"settings"_s);
    EXPECT_EQ(opened(u"networkInfo"_s), u"wlan0"_s);
    engine.wifi.setPresent(false);
    EXPECT_EQ(opened(u"networkInfo"_s), u"Unknown"_s) << "the machine's interface as it is now";
}

TEST_F(MainWindowTest, IsReachedByTheKeyboard)
{
    click(u"a"_s);
    EXPECT_EQ(reachedByTab(),
              QStringList({u"networkList"_s, u"exportList"_s, u"clearList"_s, u"sortMenu"_s,
                           u"networkDetails"_s, u"signalChart"_s, u"exportDetails"_s, u"refresh"_s,
                           u"toggleSidebar"_s, u"settings"_s, u"networkInfo"_s, u"filter"_s}));
}

} // namespace aerolith
