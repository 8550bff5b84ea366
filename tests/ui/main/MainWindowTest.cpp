#include "ui/main/MainWindow.h"

#include "ui/main/WindowDriver.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
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
    static QWidget* menu() { return QApplication::activePopupWidget(); }

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

TEST_F(MainWindowTest, OpensARowsMenuWithoutSelectingIt)
{
    click(u"a"_s);
    click(u"c"_s, {}, Qt::RightButton);
    const QPoint position = middleOf(rowOf(u"b"_s));
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, list.viewport()->mapToGlobal(position));
    QCoreApplication::sendEvent(list.viewport(), &event);
    ASSERT_NE(menu(), nullptr);
    menu()->actions().first()->trigger();
    menu()->close();
    EXPECT_TRUE(engine.scanner->isHidden(u"b"_s));

    list.selectionModel()->setCurrentIndex(list.model()->index(rowOf(u"b"_s), 0),
                                           QItemSelectionModel::NoUpdate);
    QTest::keyClick(&list, Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(menu(), nullptr);
    EXPECT_TRUE(list.visualRect(list.currentIndex())
                    .contains(list.viewport()->mapFromGlobal(menu()->geometry().topLeft())));
    EXPECT_EQ(engine.selection.selectedBSSID(), u"a"_s);
}

TEST_F(MainWindowTest, SortsByWhatTheMenuNames)
{
    auto& menu = child<QComboBox>(u"sortMenu"_s);

    struct
    {
        Qt::Key key;
        QString name;
        SortOption order;
    } const entries[] = {
        {Qt::Key_Down, u"Network Name"_s, SortOption::ssid},
        {Qt::Key_Down, u"Channel"_s, SortOption::channel},
        {Qt::Key_Down, u"Security Type"_s, SortOption::security},
        {Qt::Key_Home, u"Signal Strength"_s, SortOption::signal},
    };

    for (const auto& [key, name, order] : entries) {
        QTest::keyClick(&menu, key);
        EXPECT_EQ(engine.scanner->sortOption(), order) << name.toStdString();
        EXPECT_EQ(menu.currentText(), name);
        EXPECT_EQ(menu.accessibleDescription(), name);
    }
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

} // namespace aerolith
