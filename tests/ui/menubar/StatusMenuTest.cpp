#include "ui/ViewDriver.h"
#include "ui/common/Switch.h"
#include "ui/menubar/DialogDriver.h"
#include "ui/menubar/PopoverPlace.h"
#include "ui/menubar/StatusIcon.h"
#include "ui/menubar/StatusMenuController.h"

#include <QLineEdit>
#include <QListView>
#include <QMenu>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QImage icon(const QString& symbol)
{
    return statusIcon(symbol).pixmap(22).toImage();
}

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
class StatusMenuTest : public ViewDriver
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
            if (window->objectName() == u"statusPopover"_s) {
                return window;
            }
        }
        return nullptr;
    }

    static bool isOpen() { return popover() != nullptr && popover()->isVisible(); }

    const QWidget& whole() override { return *popover(); }

    QListView& list() { return child<QListView>(u"menuNetworks"_s); }

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

    /// Opens the popover on what is in the air.
    void open()
    {
        start();
        scan(air);
        pressIcon();
        EXPECT_TRUE(scans());
    }

    Switch& power() { return child<Switch>(u"power"_s); }

    void throwSwitch()
    {
        QTest::mouseClick(&power(), Qt::LeftButton);
        settle();
    }

    CWNetwork secured(const QString& bssid, const QString& ssid, qint64 rssi)
    {
        CWNetwork found = network(bssid, ssid, rssi);
        found.securityCodes.insert(static_cast<int>(CWSecurity::wpa2Personal));
        return found;
    }

    DialogDriver user;
    int timesOpened = 0;
    bool isOffered = true;
    FakeStatusItem* item = nullptr;
    std::optional<StatusMenuController> controller;
    QList<CWNetwork> air{network(u"a"_s, u"Alpha"_s, -70), secured(u"b"_s, u"beta"_s, -40),
                         network(u"c"_s, u"<b>C</b>&\n"_s, -50)};
};

} // namespace

TEST_F(StatusMenuTest, ShowsTheRadioAsItWasFoundInTheBar)
{
    engine.wifi.air.isOn = false;
    start();
    EXPECT_EQ(item->image, icon(u"wifi.slash"_s));
    engine.wifi.setPresent(false);
    start();
    EXPECT_EQ(item->image, icon(u"wifi"_s)) << "where there is none, none is off";
}

TEST_F(StatusMenuTest, ComesIntoTheBarOnALaterTurnIfItStillExistsAndWaitsForAButtonThere)
{
    make();
    controller.reset();
    engine.main.drain();
    EXPECT_EQ(item, nullptr);

    isOffered = false;
    start();
    controller->updateStatusIcon(false);
    EXPECT_TRUE(controller->isWiFiEnabled() && item->image.isNull());
    pressIcon();
    EXPECT_FALSE(isOpen() || scans() || controller->hasStatusItem());
    item->isOffered = true;
    Q_EMIT item->buttonAppeared();
    EXPECT_EQ(item->image, icon(u"wifi"_s));
    pressIcon();
    EXPECT_TRUE(isOpen());
}

TEST(PopoverPlace, IsByTheIconAndOnTheScreen)
{
    // A second screen to the right of the first, with bars above and below.
    const QRect available(1280, 30, 1000, 800);
    const QSize size(302, 402);

    const std::pair<QRect, QPoint> places[] = {
        {{1700, 0, 22, 30}, {1559, 30}},    // in a bar above
        {{2250, 0, 22, 30}, {1978, 30}},    // at its end
        {{1280, 0, 22, 30}, {1280, 30}},    // at its beginning
        {{1700, 830, 22, 30}, {1559, 428}}, // in a bar below
        {{1290, 700, 22, 22}, {1280, 298}}, // in a bar at the left
    };
    for (const auto& [icon, place] : places) {
        EXPECT_EQ(popoverPlace(size, icon, available), place) << place.x() << ' ' << place.y();
    }
    EXPECT_EQ(popoverPlace(size, {50, 0, 22, 20}, {0, 20, 200, 300}), QPoint(0, 20)) << "a tiny screen";
}

TEST_F(StatusMenuTest, ScansAtEveryOpeningAndClosesWhenTheUserTurnsElsewhere)
{
    start();
    EXPECT_EQ(popover(), nullptr) << "not made before it is wanted";
    pressIcon();
    EXPECT_TRUE(isOpen() && child(u"scanning"_s).isVisible());
    EXPECT_NEAR(popover()->geometry().center().x(), 610, 2);
    EXPECT_TRUE(scans());
    EXPECT_FALSE(child(u"scanning"_s).isVisible());
    pressIcon();
    EXPECT_FALSE(isOpen() || scans());
    pressIcon();
    QTest::keyClick(&list(), Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
    pressIcon();
    EXPECT_TRUE(isOpen() && scans()) << "opened again at once";

    // The icon's own press comes twice: to the popover as one outside, then as the icon's.
    QTest::mouseClick(popover(), Qt::LeftButton, {}, QPoint(-30, -10));
    EXPECT_FALSE(isOpen());
    pressIcon();
    EXPECT_FALSE(isOpen() || scans());
    pressIcon();
    EXPECT_TRUE(isOpen());
}

TEST_F(StatusMenuTest, ListsWhatTheScannerPublishesWhileItIsOpen)
{
    start();
    scan(air);
    pressIcon();
    EXPECT_EQ(names(), QStringList({u"beta"_s, u"<b>C</b>&\uFFFD"_s, u"Alpha"_s}));
    engine.wifi.air.bssid = u"a"_s;
    scan(air);
    EXPECT_EQ(names().first(), u"Alpha"_s);
    EXPECT_GT(rect(0).height(), rect(1).height()) << "the joined network's row, which has a chart";
    EXPECT_TRUE(list().model()->index(0, 0).data(Qt::AccessibleTextRole).toString().endsWith(u"joined"_s));

    pressIcon();
    scan(air);
    EXPECT_EQ(list().model()->rowCount(), 0) << "nothing is kept while nobody looks";
    pressIcon();
    EXPECT_EQ(names().size(), 3);
}

TEST_F(StatusMenuTest, SwitchesTheRadio)
{
    open();
    throwSwitch();
    EXPECT_FALSE(engine.wifi.air.isOn || scans());
    EXPECT_EQ(item->image, icon(u"wifi.slash"_s));
    power().setChecked(true);
    EXPECT_TRUE(engine.wifi.air.isOn) << "as assistive technology does it";
    EXPECT_EQ(item->image, icon(u"wifi"_s));
    EXPECT_TRUE(scans());

    engine.log.take();
    engine.wifi.air.powerRefusal = Error{u"not permitted"_s};
    throwSwitch();
    EXPECT_EQ(engine.log.take(), QStringList{u"Failed to toggle WiFi: not permitted"_s});
    EXPECT_EQ(item->image, icon(u"wifi"_s)) << "as the radio still is";
}

TEST_F(StatusMenuTest, JoinsTheNetworkOfTheRow)
{
    air.append(network(u"d"_s, u"\uFFFD"_s, -80));
    air.last().ssidData = "\xFF\xFE";
    open();
    pressButton(2);
    settle();
    EXPECT_EQ(engine.wifi.air.joins, QList<FakeJoin>({{"Alpha", {}}}));
    EXPECT_TRUE(isOpen());
    pressButton(3);
    settle();
    EXPECT_EQ(engine.wifi.air.askedFor, QList<QByteArray>({"Alpha", "\xFF\xFE"})) << "by the name as sent";
    EXPECT_EQ(engine.wifi.air.joins.size(), 2);

    engine.wifi.air.joins.clear();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, rect(2).center());
    settle();
    EXPECT_TRUE(engine.wifi.air.joins.isEmpty()) << "the button alone joins";

    user.answer([this](QDialog& dialog) {
        EXPECT_FALSE(isOpen()) << "the dialog can be reached";
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClicks(dialog.findChild<QLineEdit*>(u"password"_s), u"secret"_s);
        dialog.accept();
    });
    pressButton(0);
    settle();
    EXPECT_EQ(engine.wifi.air.joins, QList<FakeJoin>({{"beta", u"secret"_s}}));
}

TEST_F(StatusMenuTest, JoinsNothingThatIsNoLongerFound)
{
    open();
    engine.wifi.air.scan = QList<CWNetwork>();
    pressButton(0);
    settle();
    engine.wifi.air.scan = Error{u"radio off"_s};
    pressButton(0);
    settle();
    EXPECT_EQ(engine.log.take().last(), u"Error finding network: radio off"_s);
    EXPECT_TRUE(engine.wifi.air.joins.isEmpty() && user.shown.isEmpty());
}

TEST_F(StatusMenuTest, JoinsOnceHoweverOftenItIsAskedToMeanwhile)
{
    open();
    engine.wifi.air.duringJoin = [this] {
        // As while it waits: the list changes, the row is pressed once more, and so is the icon.
        pressButton(2);
        scan({air[0]});
        pressIcon();
        EXPECT_TRUE(isOpen());
        EXPECT_FALSE(scans());
    };
    pressButton(2);
    pressButton(2);
    settle();
    EXPECT_EQ(engine.wifi.air.joins, QList<FakeJoin>({{"Alpha", {}}}));
}

TEST_F(StatusMenuTest, IsOperatedByKeys)
{
    engine.wifi.air.bssid = u"b"_s;
    open();
    ASSERT_TRUE(list().hasFocus());
    for (const char* why : {"no row stands out yet", "it is joined already"}) {
        QTest::keyClick(&list(), Qt::Key_Return);
        settle();
        EXPECT_TRUE(engine.wifi.air.askedFor.isEmpty()) << why;
    }
    QTest::keyClick(&list(), Qt::Key_End);
    QTest::keyClick(&list(), Qt::Key_Return);
    settle();
    EXPECT_EQ(engine.wifi.air.joins, QList<FakeJoin>({{"Alpha", {}}}));

    EXPECT_EQ(reachedByTab(), QStringList({u"menuNetworks"_s, u"openApp"_s, u"tools"_s, u"power"_s}));
}

TEST_F(StatusMenuTest, LeadsToTheProgramAndTheDesktopsTools)
{
    open();
    QTest::mouseClick(&child(u"openApp"_s), Qt::LeftButton);
    EXPECT_EQ(timesOpened, 1);

    auto& tools = child<QMenu>(u"toolsMenu"_s);
    QAction& diagnostics = *tools.actions().last();
    engine.log.take();
    desktop.workspace.refusal = Error{u"not installed"_s};
    tools.actions().first()->trigger();
    EXPECT_EQ(desktop.workspace.pages, QList<SettingsPage>{SettingsPage::wifi});
    EXPECT_EQ(engine.log.take(), QStringList{u"not installed"_s});

    desktop.workspace.noDiagnostics = Error{u"no tool"_s};
    Q_EMIT tools.aboutToShow();
    EXPECT_FALSE(diagnostics.isEnabled());
    EXPECT_EQ(diagnostics.toolTip(), u"no tool"_s);
    desktop.workspace.noDiagnostics.reset();
    Q_EMIT tools.aboutToShow();
    diagnostics.trigger();
    EXPECT_EQ(desktop.workspace.timesDiagnosed, 1);
}

} // namespace aerolith
