#include "ui/main/NetworkListView.h"

#include "ui/main/WindowDriver.h"

#include <QScrollBar>
#include <QSet>
#include <QSignalSpy>
#include <QStyledItemDelegate>

#include <gtest/gtest.h>

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// Access points "00" to "99", the strongest first.
QList<CWNetwork> hundred()
{
    QList<CWNetwork> results;
    for (int i = 0; i < 100; ++i) {
        results.append(network(u"%1"_s.arg(i, 2, 10, QChar(u'0')), u"net %1"_s.arg(i), -i));
    }
    return results;
}

/// Tells which rows are painted as hovered.
class HoverRecorder : public QStyledItemDelegate
{
public:
    void paint(QPainter*, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        if (option.state.testFlag(QStyle::State_MouseOver)) {
            hovered.insert(index.row());
        }
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return {1, 40};
    }

    mutable QSet<int> hovered;
};

/// The list in its window.
class NetworkListViewTest : public WindowDriver
{
protected:
    NetworkListViewTest() { scan(hundred()); }
};

} // namespace

TEST_F(NetworkListViewTest, NeverDeselectsAtTheUsersHand)
{
    click(u"03"_s);
    click(u"03"_s, Qt::ControlModifier);
    EXPECT_EQ(engine.selection.selectedBSSID(), u"03"_s);
    EXPECT_EQ(highlighted(), QList<int>{3});

    engine.scanner->clearNetworks();
    scan({network(u"03"_s, u"net"_s, -3), network(u"04"_s, u"net"_s, -4)});
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(50, list.viewport()->height() - 5));
    settle();
    EXPECT_EQ(engine.selection.selectedBSSID(), u"03"_s);
    EXPECT_EQ(highlighted(), QList<int>{0});
}

TEST_F(NetworkListViewTest, FollowsTheSharedSelection)
{
    const QSignalSpy changes(&engine.selection, &SelectionStore::selectedBSSIDChanged);
    engine.selection.select(engine.scanner->networks()[60]);
    settle();
    EXPECT_EQ(changes.size(), 1) << "it is not selected once more for being shown";
    EXPECT_EQ(highlighted(), QList<int>{60});
    EXPECT_TRUE(list.viewport()->rect().contains(middleOf(60))) << "scrolled into view";
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(engine.selection.selectedBSSID(), u"60"_s) << "not before the next turn";
    settle();
    EXPECT_EQ(engine.selection.selectedBSSID(), u"61"_s) << "the keyboard goes on from there";
}

TEST_F(NetworkListViewTest, KeepsSelectionFocusAndScrollPositionWhenAScanReorders)
{
    click(u"05"_s);
    list.verticalScrollBar()->setValue(700);
    QList<CWNetwork> results = hundred();
    std::reverse(results.begin(), results.end());
    for (int i = 0; i < 100; ++i) {
        results[i].rssiValue = -i;
    }
    results.append(network(u"new"_s, u"new"_s, -50));
    scan(results);

    EXPECT_EQ(engine.selection.selectedBSSID(), u"05"_s);
    EXPECT_EQ(highlighted(), QList<int>{rowOf(u"05"_s)});
    EXPECT_EQ(list.currentIndex().row(), rowOf(u"05"_s));
    EXPECT_EQ(list.verticalScrollBar()->value(), 700);
}

TEST_F(NetworkListViewTest, KeepsTheRowBelowThePointerHovered)
{
    HoverRecorder recorder;
    list.setItemDelegate(&recorder);
    const int pointed = 4;
    QTest::mouseMove(list.viewport(), middleOf(pointed));
    QCoreApplication::processEvents();

    QList<CWNetwork> results = hundred();
    std::swap(results[pointed].rssiValue, results[70].rssiValue);
    recorder.hovered.clear();
    scan(results);
    list.viewport()->repaint();
    EXPECT_EQ(recorder.hovered, QSet<int>{pointed});
}

TEST_F(NetworkListViewTest, HighlightsTheSelectedAccessPointAgainOnceItIsListedAgain)
{
    click(u"03"_s);
    list.verticalScrollBar()->setValue(700);
    engine.scanner->setShowHiddenNetworks(false);
    engine.scanner->hideNetwork(u"03"_s);
    settle();
    EXPECT_TRUE(highlighted().isEmpty());
    EXPECT_EQ(engine.selection.selectedBSSID(), u"03"_s) << "no neighbour is selected instead";
    EXPECT_EQ(list.currentIndex().row(), 3) << "the keyboard goes on from the same place";

    engine.scanner->unhideNetwork(u"03"_s);
    settle();
    EXPECT_EQ(highlighted(), QList<int>{3});
    EXPECT_EQ(list.verticalScrollBar()->value(), 700);
}

} // namespace aerolith
