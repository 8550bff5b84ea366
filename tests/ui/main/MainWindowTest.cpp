#include "ui/main/MainWindow.h"

#include "export/NetworkCsv.h"
#include "ui/main/WindowDriver.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLabel>
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

    /// The entries of the row's menu, which is then closed.
    QStringList entries()
    {
        QStringList titles;
        if (menu() != nullptr) {
            for (const QAction* action : menu()->actions()) {
                titles.append(action->text());
            }
            menu()->close();
        }
        return titles;
    }

    void askForMenu(const QString& bssid)
    {
        const QPoint position = middleOf(rowOf(bssid));
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, list.viewport()->mapToGlobal(position));
        QCoreApplication::sendEvent(list.viewport(), &event);
    }

    /// Chooses the only entry of the open menu by the keyboard.
    void choose()
    {
        QTest::keyClick(menu(), Qt::Key_Down);
        QTest::keyClick(menu(), Qt::Key_Return);
        settle();
    }

    bool showsBackdrop() { return child(u"backdrop"_s).isVisible(); }

    QString count() { return child<QLabel>(u"networkCount"_s).text(); }

    QList<CWNetwork> air{network(u"a"_s, u"Alpha"_s, -70), network(u"b"_s, u"beta"_s, -40),
                         network(u"c"_s, u"Cafe [*] & <b>Bar</b>\n"_s, -50)};
};

} // namespace

TEST_F(MainWindowTest, ListsWhatTheScannerPublishes)
{
    EXPECT_EQ(list.model()->rowCount(), 3);
    EXPECT_EQ(count(), u"3 Networks"_s);
    EXPECT_TRUE(highlighted().isEmpty());
    press(u"clearList"_s);
    EXPECT_EQ(count(), u"0 Networks"_s);
    EXPECT_TRUE(showsBackdrop());

    window.resize(10, 10);
    EXPECT_EQ(child<QWidget>(u"content"_s).size(), QSize(800, 500));
}

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

TEST_F(MainWindowTest, FiltersHiddenNetworks)
{
    auto& filter = child<QAbstractButton>(u"filter"_s);
    EXPECT_EQ(filter.text(), u"All Networks"_s);
    engine.scanner->hideNetwork(u"b"_s);
    filter.setFocus();
    QTest::keyClick(&filter, Qt::Key_Space);
    settle();
    EXPECT_EQ(filter.text(), u"Hiding Hidden"_s);
    EXPECT_EQ(count(), u"2 Networks"_s);

    engine.scanner->setShowHiddenNetworks(true);
    settle();
    EXPECT_TRUE(filter.isChecked()) << "it follows the flag";
    EXPECT_EQ(filter.text(), u"All Networks"_s);
    EXPECT_EQ(count(), u"3 Networks"_s);
}

TEST_F(MainWindowTest, HidesAndShowsARowByItsMenu)
{
    click(u"a"_s);
    askForMenu(u"b"_s);
    EXPECT_EQ(entries(), QStringList{u"Hide Network"_s});
    askForMenu(u"b"_s);
    choose();
    EXPECT_TRUE(engine.scanner->isHidden(u"b"_s));
    EXPECT_EQ(engine.selection.selectedBSSID(), u"a"_s);

    list.setFocus();
    list.selectionModel()->setCurrentIndex(list.model()->index(rowOf(u"b"_s), 0),
                                           QItemSelectionModel::NoUpdate);
    QTest::keyClick(&list, Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(menu(), nullptr);
    EXPECT_TRUE(list.visualRect(list.currentIndex())
                    .contains(list.viewport()->mapFromGlobal(menu()->geometry().topLeft())));
    EXPECT_EQ(entries(), QStringList{u"Show Network"_s});
    QTest::keyClick(&list, Qt::Key_Menu);
    choose();
    EXPECT_FALSE(engine.scanner->isHidden(u"b"_s));

    click(u"c"_s, {}, Qt::RightButton);
    EXPECT_EQ(engine.selection.selectedBSSID(), u"a"_s) << "asking for a menu selects nothing";
}

TEST_F(MainWindowTest, SortsByTheMenuAndTheMenuByTheScanner)
{
    auto& menu = child<QComboBox>(u"sortMenu"_s);
    EXPECT_EQ(menu.currentText(), u"Signal Strength"_s);
    EXPECT_EQ(engine.listedBSSIDs(), QStringList({u"b"_s, u"c"_s, u"a"_s}));
    menu.setFocus();
    QTest::keyClick(&menu, Qt::Key_Down);
    settle();
    EXPECT_EQ(engine.scanner->sortOption(), SortOption::ssid);
    EXPECT_EQ(engine.listedBSSIDs(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    scan(air);
    EXPECT_EQ(engine.listedBSSIDs(), QStringList({u"b"_s, u"c"_s, u"a"_s})) << "in the order of the scan";
    EXPECT_EQ(menu.currentText(), u"Network Name"_s);
    engine.scanner->setSortOption(SortOption::security);
    EXPECT_EQ(menu.currentText(), u"Security Type"_s);
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
}

TEST_F(MainWindowTest, OpensEachSheetAnewOverItselfAlone)
{
    press(u"settings"_s);
    auto& settings = child<QDialog>(u"settingsView"_s);
    EXPECT_EQ(settings.windowModality(), Qt::WindowModal);
    QTest::keyClick(&settings, Qt::Key_Escape);
    settle();
    EXPECT_EQ(window.findChild<QDialog*>(), nullptr);

    const auto namesInterface = [this] {
        press(u"networkInfo"_s);
        auto& dialog = child<QDialog>(u"networkInfoDialog"_s);
        EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
        const QList<QTextEdit*> values = dialog.findChildren<QTextEdit*>();
        const bool isNamed = !values.isEmpty() && values.first()->toPlainText() == "wlan0"_L1;
        dialog.close();
        settle();
        return isNamed;
    };
    EXPECT_TRUE(namesInterface());
    engine.wifi.setPresent(false);
    EXPECT_FALSE(namesInterface()) << "the machine's interface as it is now";
}

TEST_F(MainWindowTest, IsReachedByTheKeyboardAndNamedForAssistiveTechnology)
{
    click(u"a"_s);
    QStringList reached;
    QWidget* start = QApplication::focusWidget();
    do {
        QWidget* focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr);
        const auto* button = qobject_cast<QAbstractButton*>(focused);
        const bool isNamed = !focused->accessibleName().isEmpty() || (button && !button->text().isEmpty());
        EXPECT_TRUE(isNamed) << focused->objectName().toStdString();
        reached.append(focused->objectName());
        QTest::keyClick(focused, Qt::Key_Tab);
    } while (QApplication::focusWidget() != start && reached.size() < 50);
    EXPECT_EQ(reached, QStringList({u"networkList"_s, u"exportList"_s, u"clearList"_s, u"sortMenu"_s,
                                    u"networkDetails"_s, u"signalChart"_s, u"exportDetails"_s, u"refresh"_s,
                                    u"toggleSidebar"_s, u"settings"_s, u"networkInfo"_s, u"filter"_s}));
}

} // namespace aerolith
