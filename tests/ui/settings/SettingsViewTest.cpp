#include "ui/settings/SettingsView.h"

#include "model/SettingKeys.h"
#include "ui/ViewDriver.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSlider>

#include <limits>
#include <tuple>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

class SettingsViewTest : public ViewDriver
{
protected:
    const QWidget& whole() override { return *view; }

    void open()
    {
        view.emplace(*engine.scanner, engine.defaults, loginItem, engine.log);
        view->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&*view));
    }

    QString shown(const QString& setting) { return child<QLabel>(setting + u"Value"_s).text(); }

    std::optional<double> interval() const { return engine.defaults.doubleForKey(SettingKeys::scanInterval); }

    std::optional<qint64> limit() const { return engine.defaults.integerForKey(SettingKeys::historyLimit); }

    /// Whether the timer's next tick comes after this time, and not before.
    bool ticksAfter(double seconds)
    {
        engine.main.advance(Seconds(seconds - 0.5));
        const bool early = engine.scanTasks.runOne();
        engine.main.advance(Seconds(0.5));
        return engine.scanTasks.runOne() && !early;
    }

    FakeLoginItem& loginItem = desktop.loginItem;
    std::optional<SettingsView> view;
};

} // namespace

TEST_F(SettingsViewTest, StoresEveryMovementAtOnceAndUndoesNone)
{
    open();
    EXPECT_EQ(shown(u"scanInterval"_s), u"10s"_s);
    EXPECT_EQ(interval(), std::nullopt) << "shown is not moved";

    auto& slider = child<QSlider>(u"scanInterval"_s);
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(interval(), 11.0);
    EXPECT_EQ(shown(u"scanInterval"_s), u"11s"_s);
    EXPECT_EQ(slider.accessibleDescription(), u"11 seconds"_s);
    QTest::keyClick(&slider, Qt::Key_End);
    QTest::keyClick(&*view, Qt::Key_Escape);
    EXPECT_EQ(interval(), 30.0);
}

TEST_F(SettingsViewTest, MovesTheHistorySliderInStepsOfFive)
{
    open();
    auto& slider = child<QSlider>(u"historyLimit"_s);
    QSet<qint64> stored;
    slider.setSliderDown(true);
    for (int position = slider.minimum(); position <= slider.maximum(); ++position) {
        slider.setSliderPosition(position); // as a mouse does
        stored.insert(limit().value_or(20));
    }
    slider.setSliderDown(false);
    EXPECT_EQ(stored, (QSet<qint64>{10, 15, 20, 25, 30, 35, 40, 45, 50}));
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_EQ(limit(), 45);
    QAccessible::queryAccessibleInterface(&slider)->valueInterface()->setCurrentValue(23);
    EXPECT_EQ(slider.value(), 25);
    EXPECT_EQ(limit(), 25);
    EXPECT_EQ(shown(u"historyLimit"_s), u"25"_s);
}

TEST_F(SettingsViewTest, RestartsTheTimerOnSaveAlone)
{
    engine.scanner->startTimer();
    open();
    QTest::keyClick(&child<QSlider>(u"scanInterval"_s), Qt::Key_Home);
    QTest::keyClick(&*view, Qt::Key_Escape);
    EXPECT_TRUE(ticksAfter(10)) << "as before";

    open();
    auto& cancel = child<QPushButton>(u"cancel"_s);
    cancel.setFocus();
    QTest::keyClick(&cancel, Qt::Key_Return);
    EXPECT_FALSE(view->isVisible());
    EXPECT_TRUE(ticksAfter(5));
    EXPECT_EQ(engine.main.runningTimers(), 1U);
}

TEST_F(SettingsViewTest, TellsWhatNoSliderReachesAndLeavesItStored)
{
    const std::tuple<double, qint64, QString, QString> cases[] = {
        {100, -1, u"100s"_s, u"-1"_s},
        {-3, 9, u"10s"_s, u"9"_s},
        {12.9, 51, u"12s"_s, u"51"_s},
        {1e300, std::numeric_limits<qint64>::max(), u"2147483647s"_s, u"2147483647"_s},
        {std::numeric_limits<double>::infinity(), 23, u"10s"_s, u"23"_s},
    };
    for (const auto& [storedInterval, storedLimit, shownInterval, shownLimit] : cases) {
        engine.defaults.setDouble(storedInterval, SettingKeys::scanInterval);
        engine.defaults.setInteger(storedLimit, SettingKeys::historyLimit);
        open();
        EXPECT_EQ(shown(u"scanInterval"_s), shownInterval);
        EXPECT_EQ(shown(u"historyLimit"_s), shownLimit);
        QTest::keyClick(&*view, Qt::Key_Return);
        EXPECT_EQ(interval(), storedInterval);
        EXPECT_EQ(limit(), storedLimit);
    }
    open();
    QTest::keyClick(&child<QSlider>(u"historyLimit"_s), Qt::Key_Left);
    EXPECT_EQ(limit(), 20) << "back on a step";
}

TEST_F(SettingsViewTest, SwitchesTheLoginItemAndGoesBackWhenRefused)
{
    loginItem.enabled = true;
    open();
    auto& toggle = child<QCheckBox>(u"startAtLogin"_s);
    QTest::keyClick(&toggle, Qt::Key_Space);
    EXPECT_FALSE(loginItem.enabled);

    engine.log.take();
    loginItem.refusal = Error{u"the disk is full"_s};
    QTest::keyClick(&toggle, Qt::Key_Space);
    EXPECT_FALSE(toggle.isChecked());
    EXPECT_EQ(loginItem.calls, 2) << "not told to go back as well";
    EXPECT_EQ(engine.log.take(), QStringList(u"Error toggling login item: the disk is full"_s));

    view->hide();
    loginItem.enabled = true;
    view->show();
    EXPECT_TRUE(toggle.isChecked()) << "changed from outside";
}

} // namespace aerolith
