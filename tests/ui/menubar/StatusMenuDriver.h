#pragma once

#include "ui/ViewDriver.h"
#include "ui/menubar/DialogDriver.h"
#include "ui/menubar/StatusMenuController.h"

#include <QListView>

namespace aerolith {

/// A place in a desktop's bar that the test sees and presses.
class FakeStatusItem : public StatusItem
{
public:
    [[nodiscard]] bool hasButton() const override { return isOffered; }

    void setImage(const QIcon& icon, const QString&) override { image = icon.pixmap(22).toImage(); }

    [[nodiscard]] QRect frame() const override { return {600, 0, 22, 22}; }

    bool isOffered = true;
    QImage image;
};

/// The status item and its popover.
class StatusMenuDriver : public ViewDriver
{
protected:
    void make()
    {
        const auto makeStatusItem = [this] {
            auto made = std::make_unique<FakeStatusItem>();
            made->isOffered = isOffered;
            item = made.get();
            return made;
        };
        controller.emplace(*engine.scanner, MenuSurroundings{.wifiClient = engine.wifi,
                                                             .mainQueue = engine.main,
                                                             .workspace = desktop.workspace,
                                                             .log = engine.log,
                                                             .openMainWindow = [this] { ++timesOpened; },
                                                             .makeStatusItem = makeStatusItem});
    }

    /// Begins the program's life in the bar.
    void start()
    {
        make();
        engine.main.drain();
    }

    void pressIcon()
    {
        Q_EMIT item->pressed();
        settle();
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

    const QWidget& whole() override { return *popover(); }

    QListView& list() { return child<QListView>(QStringLiteral("menuNetworks")); }

    QRect rect(int row) { return list().visualRect(list().model()->index(row, 0)); }

    /// The row's lock, which is part of its button.
    void pressButton(int row)
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

    DialogDriver user;
    int timesOpened = 0;
    bool isOffered = true;
    FakeStatusItem* item = nullptr;
    std::optional<StatusMenuController> controller;
};

} // namespace aerolith
