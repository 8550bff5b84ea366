#pragma once

#include "support/Engine.h"
#include "support/FakeDesktop.h"
#include "support/Printing.h"
#include "ui/SavedFiles.h"
#include "ui/main/MainWindow.h"

#include <QCoreApplication>
#include <QListView>
#include <QTest>

#include <gtest/gtest.h>

namespace aerolith {

/// The main window on an engine that the test drives, as a user finds it: by the names of its parts.
class WindowDriver : public testing::Test
{
protected:
    WindowDriver()
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        settle();
    }

    void scan(const QList<CWNetwork>& results)
    {
        engine.cycle(results);
        QCoreApplication::processEvents();
    }

    /// Lets what the user did take effect.
    void settle()
    {
        engine.main.drain();
        QCoreApplication::processEvents();
    }

    template <typename Widget = QWidget>
    Widget& child(const QString& name)
    {
        auto* found = window.findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return *found;
    }

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

    Engine engine;
    DateTexts texts{UserLocale()};
    SavedFiles files;
    FakeDesktop desktop;
    WindowSurroundings surroundings{.userDefaults = engine.defaults,
                                    .wifiClient = engine.wifi,
                                    .desktop = desktop.services(),
                                    .log = engine.log,
                                    .detail = {engine.main, texts, files.exporter}};
    MainWindow window{*engine.scanner, surroundings};
    QListView& list = child<QListView>(QStringLiteral("networkList"));
};

} // namespace aerolith
