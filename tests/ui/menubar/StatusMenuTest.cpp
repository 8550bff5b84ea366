#include "ui/common/Switch.h"
#include "ui/menubar/StatusIcon.h"
#include "ui/menubar/StatusMenuController.h"
#include "ui/menubar/StatusMenuDriver.h"

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QImage imageOf(const QString& symbol)
{
    return statusIcon(symbol).pixmap(22).toImage();
}

class StatusMenuTest : public StatusMenuDriver
{
protected:
    Switch& power() { return child<Switch>(u"power"_s); }

    void throwSwitch()
    {
        QTest::mouseClick(&power(), Qt::LeftButton);
        settle();
    }

    QString image()
    {
        for (const QString& symbol : {u"wifi"_s, u"wifi.slash"_s}) {
            if (item->image == imageOf(symbol)) {
                return symbol;
            }
        }
        return {};
    }

    CWNetwork secured(const QString& bssid, const QString& ssid, qint64 rssi)
    {
        CWNetwork found = network(bssid, ssid, rssi);
        found.securityCodes.insert(static_cast<int>(CWSecurity::wpa2Personal));
        return found;
    }

    QList<CWNetwork> air{network(u"a"_s, u"Alpha"_s, -70), secured(u"b"_s, u"beta"_s, -40),
                         network(u"c"_s, u"<b>C</b>&\n"_s, -50)};
};

} // namespace

TEST_F(StatusMenuTest, ShowsTheRadioAsItWasFoundInTheBar)
{
    const struct
    {
        bool isPresent;
        bool isOn;
        bool isEnabled;
    } machines[] = {{true, true, true}, {true, false, false}, {false, false, true}};

    for (const auto& [isPresent, isOn, isEnabled] : machines) {
        engine.wifi.setPresent(isPresent);
        engine.wifi.air.isOn = isOn;
        start();
        EXPECT_EQ(controller->isWiFiEnabled(), isEnabled);
        EXPECT_EQ(image(), isEnabled ? u"wifi"_s : u"wifi.slash"_s);
        EXPECT_EQ(item->description, u"WiFi"_s);
    }
    engine.wifi.setPresent(true);
    engine.wifi.air.isOn = false;
    EXPECT_EQ(image(), u"wifi"_s) << "switched elsewhere, it goes unnoticed";
}

TEST_F(StatusMenuTest, ComesIntoTheBarOnALaterTurnIfItStillExists)
{
    make();
    EXPECT_EQ(item, nullptr);
    controller.reset();
    engine.main.drain();
    EXPECT_EQ(item, nullptr);
}

TEST_F(StatusMenuTest, WaitsForAButtonInTheBar)
{
    isOffered = false;
    start();
    const QSignalSpy published(&*controller, &StatusMenuController::isWiFiEnabledChanged);
    controller->updateStatusIcon(false);
    EXPECT_TRUE(controller->isWiFiEnabled());
    EXPECT_TRUE(published.isEmpty());
    EXPECT_TRUE(item->image.isNull());
    pressIcon();
    EXPECT_FALSE(isOpen() || scans() || controller->hasStatusItem());

    item->isOffered = true;
    Q_EMIT item->buttonAppeared();
    EXPECT_EQ(image(), u"wifi"_s);
    pressIcon();
    EXPECT_TRUE(isOpen());
}

TEST_F(StatusMenuTest, OpensAndClosesUnderItsIconAndScansAtEveryOpening)
{
    start();
    EXPECT_EQ(popover(), nullptr) << "not made before it is wanted";
    for (int round = 0; round < 2; ++round) {
        pressIcon();
        ASSERT_TRUE(isOpen());
        EXPECT_TRUE(scans());
        EXPECT_EQ(child(u"statusMenuView"_s).size(), QSize(300, 400));
        EXPECT_EQ(popover()->geometry().top(), 22);
        EXPECT_NEAR(popover()->geometry().center().x(), 610, 2);
        pressIcon();
        EXPECT_FALSE(isOpen());
        EXPECT_FALSE(scans());
    }
}

TEST_F(StatusMenuTest, ClosesWhenTheUserTurnsElsewhere)
{
    start();
    pressIcon();
    scans();
    QTest::keyClick(popover(), Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
    pressIcon();
    EXPECT_TRUE(isOpen()) << "opened again at once";
    QTest::keyClick(&list(), Qt::Key_Escape);
    EXPECT_FALSE(isOpen()) << "also from the list";

    pressIcon();
    scans();
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
    engine.scanner->setSortOption(SortOption::ssid);
    settle();
    EXPECT_EQ(names(), QStringList({u"<b>C</b>&\uFFFD"_s, u"Alpha"_s, u"beta"_s}));

    engine.wifi.air.bssid = u"a"_s;
    scan(air);
    EXPECT_EQ(names().first(), u"Alpha"_s);
    EXPECT_EQ(rect(0).height(), rect(1).height() + 29) << "the joined network's row, which has a chart";
    EXPECT_EQ(rect(1).top(), rect(0).bottom() + 1);
    EXPECT_TRUE(list().model()->index(0, 0).data(Qt::AccessibleTextRole).toString().endsWith(u"joined"_s));

    pressIcon();
    scan(air);
    EXPECT_EQ(list().model()->rowCount(), 0) << "nothing is kept while nobody looks";
    pressIcon();
    EXPECT_EQ(names().size(), 3);
    engine.scanner->clearNetworks();
    settle();
    EXPECT_EQ(names(), QStringList());
    EXPECT_TRUE(power().isVisible() && child(u"openApp"_s).isVisible());
}

TEST_F(StatusMenuTest, TurnsItsSpinnerOnlyWhileAScanIsSeen)
{
    start();
    pressIcon();
    auto& spinner = child(u"scanning"_s);
    EXPECT_TRUE(spinner.isVisible());
    scans();
    EXPECT_FALSE(spinner.isVisible());
    engine.wifi.air.scan = Error{u"no radio"_s};
    engine.runCycle();
    EXPECT_FALSE(spinner.isVisible()) << "after a failure too";
    pressIcon();
    engine.scanner->scanNetworks();
    settle();
    EXPECT_FALSE(spinner.isVisible());
}

TEST_F(StatusMenuTest, SwitchesTheRadio)
{
    start();
    pressIcon();
    scans();
    throwSwitch();
    EXPECT_FALSE(engine.wifi.air.isOn);
    EXPECT_EQ(image(), u"wifi.slash"_s);
    EXPECT_FALSE(scans());
    power().setChecked(true);
    EXPECT_TRUE(engine.wifi.air.isOn) << "as assistive technology does it";
    EXPECT_EQ(image(), u"wifi"_s);
    EXPECT_TRUE(scans());

    engine.log.take();
    engine.wifi.air.powerRefusal = Error{u"not permitted"_s};
    throwSwitch();
    EXPECT_EQ(engine.log.take(), QStringList{u"Failed to toggle WiFi: not permitted"_s});
    EXPECT_FALSE(power().isChecked());
    EXPECT_FALSE(controller->isWiFiEnabled());
    EXPECT_EQ(image(), u"wifi"_s);

    engine.wifi.setPresent(false);
    throwSwitch();
    EXPECT_TRUE(power().isChecked());
    EXPECT_TRUE(controller->isWiFiEnabled());
    EXPECT_FALSE(scans());
    EXPECT_EQ(engine.log.take(), QStringList());
}

TEST_F(StatusMenuTest, JoinsTheNetworkOfTheRow)
{
    start();
    air.append(network(u"d"_s, u"\uFFFD"_s, -80));
    air.last().ssidData = "\xFF\xFE";
    scan(air);
    pressIcon();
    scans();
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
    start();
    scan(air);
    pressIcon();
    scans();
    engine.log.take();
    engine.wifi.air.scan = QList<CWNetwork>();
    pressButton(0);
    settle();
    EXPECT_EQ(engine.log.take(), QStringList());
    engine.wifi.air.scan = Error{u"radio off"_s};
    pressButton(0);
    settle();
    EXPECT_EQ(engine.log.take(), QStringList{u"Error finding network: radio off"_s});
    EXPECT_TRUE(engine.wifi.air.joins.isEmpty() && user.shown.isEmpty());
}

TEST_F(StatusMenuTest, JoinsOnceHoweverOftenItIsAskedToMeanwhile)
{
    start();
    scan(air);
    pressIcon();
    scans();
    engine.wifi.air.duringJoin = [this] {
        // As while it waits: the list changes, and the row is pressed once more.
        pressButton(2);
        scan({air[0]});
    };
    pressButton(2);
    pressButton(2);
    settle();
    EXPECT_EQ(engine.wifi.air.joins, QList<FakeJoin>({{"Alpha", {}}}));
}

TEST_F(StatusMenuTest, IsOperatedByKeys)
{
    engine.wifi.air.bssid = u"b"_s;
    start();
    scan(air);
    pressIcon();
    scans();
    ASSERT_TRUE(list().hasFocus());
    QTest::keyClick(&list(), Qt::Key_Return);
    settle();
    EXPECT_TRUE(engine.wifi.air.joins.isEmpty()) << "no row stands out yet";
    QTest::keyClick(&list(), Qt::Key_Return);
    settle();
    EXPECT_TRUE(engine.wifi.air.askedFor.isEmpty()) << "it is joined already";
    QTest::keyClick(&list(), Qt::Key_End);
    QTest::keyClick(&list(), Qt::Key_Return);
    settle();
    EXPECT_EQ(engine.wifi.air.joins, QList<FakeJoin>({{"Alpha", {}}}));

    QStringList reached;
    for (int i = 0; i < 4; ++i) {
        QWidget* focused = popover()->focusWidget();
        const auto* button = qobject_cast<QAbstractButton*>(focused);
        EXPECT_TRUE(!focused->accessibleName().isEmpty() || (button && !button->text().isEmpty()));
        reached.append(focused->objectName());
        QTest::keyClick(focused, Qt::Key_Tab);
    }
    EXPECT_EQ(reached, QStringList({u"menuNetworks"_s, u"openApp"_s, u"tools"_s, u"power"_s}));
}

TEST_F(StatusMenuTest, LeadsToTheProgramAndTheDesktopsTools)
{
    start();
    pressIcon();
    QTest::mouseClick(&child(u"openApp"_s), Qt::LeftButton);
    EXPECT_EQ(timesOpened, 1);

    const QList<QAction*> entries = child<QMenu>(u"toolsMenu"_s).actions();
    EXPECT_EQ(entries.first()->text(), u"Wi-Fi Settings..."_s);
    engine.log.take();
    entries.first()->trigger();
    EXPECT_EQ(desktop.workspace.pages, QList<SettingsPage>{SettingsPage::wifi});
    EXPECT_EQ(engine.log.take(), QStringList());
    desktop.workspace.refusal = Error{u"not installed"_s};
    entries.first()->trigger();
    EXPECT_EQ(engine.log.take(), QStringList{u"not installed"_s});

    ASSERT_EQ(entries.size(), 2);
    QAction& diagnostics = *entries.last();
    EXPECT_EQ(diagnostics.text(), u"Wireless Diagnostics..."_s);
    desktop.workspace.noDiagnostics = Error{u"no tool"_s};
    auto& tools = child<QMenu>(u"toolsMenu"_s);
    Q_EMIT tools.aboutToShow();
    EXPECT_FALSE(diagnostics.isEnabled());
    EXPECT_TRUE(tools.toolTipsVisible());
    EXPECT_EQ(diagnostics.toolTip(), u"no tool"_s);
    desktop.workspace.noDiagnostics.reset();
    Q_EMIT tools.aboutToShow();
    diagnostics.trigger();
    EXPECT_EQ(desktop.workspace.timesDiagnosed, 1);
    EXPECT_EQ(engine.log.take(), QStringList{u"not installed"_s});
}

} // namespace aerolith
