#pragma once

#include "ui/ViewDriver.h"
#include "ui/main/MainWindow.h"

#include <QListView>

namespace aerolith {

class WindowDriver : public ViewDriver
{
protected:
    WindowDriver()
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        settle();
    }

    const QWidget& whole() final { return window; }

    void press(const QString& button)
    {
        QTest::mouseClick(&child(button), Qt::LeftButton);
        settle();
    }

    /// The row that shows this access point; below 0 when none does.
    int rowOf(const QString& bssid) const { return static_cast<int>(engine.listedBSSIDs().indexOf(bssid)); }

    QPoint middleOf(int row) const { return list.visualRect(list.model()->index(row, 0)).center(); }

    void click(const QString& bssid, Qt::KeyboardModifiers modifiers = {},
               Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(list.viewport(), button, modifiers, middleOf(rowOf(bssid)));
        settle();
    }

    /// The highlighted rows.
    QList<int> highlighted() const
    {
        QList<int> rows;
        for (const QModelIndex& index : list.selectionModel()->selectedIndexes()) {
            rows.append(index.row());
        }
        return rows;
    }

    WindowSurroundings surroundings{.userDefaults = engine.defaults,
                                    .wifiClient = engine.wifi,
                                    .desktop = desktop.services(),
                                    .log = engine.log,
                                    .detail = {engine.main, texts, files.exporter}};
    MainWindow window{*engine.scanner, surroundings};
    QListView& list = child<QListView>(QStringLiteral("networkList"));
};

} // namespace aerolith
