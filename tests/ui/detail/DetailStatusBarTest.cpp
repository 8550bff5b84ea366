#include "ui/detail/DetailStatusBar.h"

#include "export/NetworkCsv.h"
#include "ui/ViewDriver.h"

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

class DetailStatusBarTest : public ViewDriver
{
protected:
    DetailStatusBarTest()
    {
        window.resize(500, 100);
        bar.resize(500, bar.height());
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        scan(-50);
    }

    const QWidget& whole() override { return bar; }

    void scan(qint64 rssi)
    {
        ViewDriver::scan({network(u"a"_s, u"Cafe"_s, rssi)});
        bar.showNetwork(engine.scanner->networks().first());
        settle();
    }

    QString lastSeen() { return child<QLabel>(u"lastSeen"_s).text(); }

    QWidget window;
    DetailStatusBar bar{*engine.scanner, {engine.main, texts, files.exporter}, &window};
};

} // namespace

TEST_F(DetailStatusBarTest, AgesTheNetworkAsItsRefreshTurnsIntoASpinnerAndBack)
{
    auto& refresh = child(u"refresh"_s);
    auto& spinner = child(u"scanning"_s);
    refresh.setFocus();
    EXPECT_EQ(lastSeen(), u"Last seen 0 sec. ago"_s);
    engine.main.advance(Seconds(12));
    settle();
    EXPECT_EQ(lastSeen(), u"Last seen 0 sec. ago"_s) << "there is no clock";
    QTest::keyClick(&refresh, Qt::Key_Space);
    settle();
    EXPECT_EQ(lastSeen(), u"Last seen 12 sec. ago"_s);
    EXPECT_TRUE(spinner.isVisible() && !refresh.isVisible());
    EXPECT_EQ(spinner.geometry().center().x(), refresh.geometry().center().x());

    engine.scanTasks.runOne();
    settle();
    EXPECT_TRUE(refresh.isVisible() && !spinner.isVisible());
    EXPECT_TRUE(refresh.hasFocus()) << "the keyboard is where it was";

    bar.showNetwork({});
    EXPECT_FALSE(child(u"exportDetails"_s).isVisible() || child(u"lastSeen"_s).isVisible());
    EXPECT_TRUE(refresh.isVisible());
}

TEST_F(DetailStatusBarTest, SavesWhatIsShownWhenTheUserConfirms)
{
    QTest::mouseClick(&child(u"exportDetails"_s), Qt::LeftButton);
    EXPECT_TRUE(files.suggested().endsWith(u"/network_details.csv"_s));
    scan(-61);
    EXPECT_EQ(files.confirm(), networkDetailsCSV(engine.scanner->networks().first(), texts).toUtf8());
}

} // namespace aerolith
