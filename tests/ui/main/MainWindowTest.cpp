#include "ui/main/MainWindow.h"

#include "ui/main/WindowDriver.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

using MainWindowTest = WindowDriver;

TEST_F(MainWindowTest, OpensARowsMenuWithoutSelectingIt)
{
    scan({network(u"a"_s, u"Alpha"_s, -70), network(u"b"_s, u"beta"_s, -40), network(u"c"_s, u"Cafe"_s)});
    click(u"a"_s);
    click(u"c"_s, {}, Qt::RightButton);
    const QPoint position = middleOf(rowOf(u"b"_s));
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, list.viewport()->mapToGlobal(position));
    QCoreApplication::sendEvent(list.viewport(), &event);
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    menu->actions().first()->trigger();
    menu->close();
    EXPECT_TRUE(engine.scanner->isHidden(u"b"_s));

    const QModelIndex current = list.model()->index(rowOf(u"b"_s), 0);
    list.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    QTest::keyClick(&list, Qt::Key_F10, Qt::ShiftModifier);
    menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(list.visualRect(current).contains(list.viewport()->mapFromGlobal(menu->pos())));
    EXPECT_EQ(engine.selection.selectedBSSID(), u"a"_s);
}

TEST_F(MainWindowTest, LeavesTheOrderAloneWhenTheWheelPassesItsMenu)
{
    auto& menu = child<QComboBox>(u"sortMenu"_s);
    const auto turnWheel = [&menu] {
        QWheelEvent turn({5, 5}, menu.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                         false);
        QCoreApplication::sendEvent(&menu, &turn);
    };
    turnWheel();
    EXPECT_EQ(engine.scanner->sortOption(), SortOption::signal);
    EXPECT_EQ(menu.focusPolicy(), Qt::StrongFocus) << "nor does the wheel take the focus";
    menu.setFocus();
    turnWheel();
    EXPECT_EQ(engine.scanner->sortOption(), SortOption::ssid);
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

} // namespace aerolith
