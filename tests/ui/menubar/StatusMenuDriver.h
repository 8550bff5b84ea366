#pragma once

#include "support/Engine.h"
#include "support/FakeDesktop.h"
#include "support/Printing.h"
#include "ui/menubar/DialogDriver.h"
#include "ui/menubar/StatusMenuController.h"

#include <QCoreApplication>
#include <QListView>
#include <QTest>

#include <gtest/gtest.h>

namespace aerolith {

/// A place in a desktop's bar that the test sees and presses.
class FakeStatusItem : public StatusItem
{
public:
    [[nodiscard]] bool hasButton() const override { return isOffered; }

    void setImage(const QIcon& icon, const QString& accessibilityDescription) override
    {
        image = icon.pixmap(22).toImage();
        description = accessibilityDescription;
    }

    [[nodiscard]] QRect frame() const override { return {600, 0, 22, 22}; }

    bool isOffered = true;
    QImage image;
    QString description;
};

/// The status item and its popover on an engine that the test drives, as a user finds them.
class StatusMenuDriver : public testing::Test
{
protected:
    /// Begins the program's life in the bar.
    void start()
    {
        make();
        engine.main.drain();
    }

    void make()
    {
        controller.emplace(*engine.scanner, MenuSurroundings{.wifiClient = engine.wifi,
                                                             .mainQueue = engine.main,
                                                             .workspace = desktop.workspace,
                                                             .log = engine.log,
                                                             .openMainWindow = [this] { ++timesOpened; },
                                                             .makeStatusItem =
                                                                 [this] {
                                                                     auto made =
                                                                         std::make_unique<FakeStatusItem>();
                                                                     made->isOffered = isOffered;
                                                                     item = made.get();
                                                                     return made;
                                                                 }});
    }

    void pressIcon()
    {
        Q_EMIT item->pressed();
        settle();
    }

    /// Lets what the user did take effect.
    void settle()
    {
        engine.main.drain();
        QCoreApplication::processEvents();
    }

    void scan(const QList<CWNetwork>& results)
    {
        engine.cycle(results);
        QCoreApplication::processEvents();
    }

    /// Whether a scan has been asked for since the last question.
    bool scans()
    {
        engine.main.drain();
        const bool asked = engine.scanTasks.runOne();
        engine.main.drain();
        return asked;
    }

    /// Null until it is opened first.
    static QWidget* popover()
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QStringLiteral("statusPopover")) {
                return window;
            }
        }
        return nullptr;
    }

    static bool isOpen() { return popover() != nullptr && popover()->isVisible(); }

    template <typename Widget = QWidget>
    static Widget& child(const QString& name)
    {
        auto* found = popover()->findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return *found;
    }

    static QListView& list() { return child<QListView>(QStringLiteral("menuNetworks")); }

    static QRect rect(int row) { return list().visualRect(list().model()->index(row, 0)); }

    /// The row's lock, which is part of its button.
    static void pressButton(int row)
    {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          {list().viewport()->width() - 18, rect(row).center().y()});
    }

    QStringList names()
    {
        QStringList shown;
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            shown.append(list().model()->index(row, 0).data().toString());
        }
        return shown;
    }

    Engine engine;
    FakeDesktop desktop;
    DialogDriver user;
    int timesOpened = 0;
    bool isOffered = true;
    FakeStatusItem* item = nullptr;
    std::optional<StatusMenuController> controller;
};

} // namespace aerolith
