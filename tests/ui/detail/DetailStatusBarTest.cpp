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

    /// The items that can be seen, in reading order.
    QStringList visibleItems()
    {
        QStringList names;
        for (const QString& name : {u"exportDetails"_s, u"lastSeen"_s, u"refresh"_s, u"scanning"_s}) {
            if (child(name).isVisible()) {
                names.append(name);
            }
        }
        return names;
    }

    QString lastSeen() { return child<QLabel>(u"lastSeen"_s).text(); }

    QWidget window;
    DetailStatusBar bar{*engine.scanner, {engine.main, texts, files.exporter}, &window};
};

} // namespace

TEST_F(DetailStatusBarTest, OffersTheScanAloneWithoutANetwork)
{
    EXPECT_EQ(visibleItems(), QStringList({u"exportDetails"_s, u"lastSeen"_s, u"refresh"_s}));
    bar.showNetwork({});
    EXPECT_EQ(visibleItems(), QStringList({u"refresh"_s}));
    bar.layout()->activate();
    EXPECT_GT(child(u"refresh"_s).x(), 450) << "on the right";
}

TEST_F(DetailStatusBarTest, TurnsTheRefreshIntoASpinnerWhileScanning)
{
    auto& refresh = child(u"refresh"_s);
    refresh.setFocus();
    engine.log.take();
    QTest::keyClick(&refresh, Qt::Key_Space);
    settle();
    EXPECT_EQ(engine.log.take().count(u"Starting network scan..."_s), 1);
    EXPECT_EQ(visibleItems().last(), u"scanning"_s);
    EXPECT_EQ(child(u"scanning"_s).geometry().center().x(), refresh.geometry().center().x());

    engine.scanTasks.runOne();
    settle();
    EXPECT_EQ(visibleItems().last(), u"refresh"_s);
    EXPECT_TRUE(refresh.hasFocus()) << "the keyboard is where it was";
}

TEST_F(DetailStatusBarTest, AgesTheNetworkWithEveryPublish)
{
    EXPECT_EQ(lastSeen(), u"Last seen 0 sec. ago"_s);
    engine.main.advance(Seconds(12));
    settle();
    EXPECT_EQ(lastSeen(), u"Last seen 0 sec. ago"_s) << "there is no clock";
    engine.scanner->scanNetworks();
    settle();
    EXPECT_EQ(lastSeen(), u"Last seen 12 sec. ago"_s);
}

TEST_F(DetailStatusBarTest, SavesWhatIsShownWhenTheUserConfirms)
{
    QTest::mouseClick(&child(u"exportDetails"_s), Qt::LeftButton);
    EXPECT_TRUE(files.suggested().endsWith(u"/network_details.csv"_s));
    scan(-61);
    EXPECT_EQ(files.confirm(), networkDetailsCSV(engine.scanner->networks().first(), texts).toUtf8());
}

} // namespace aerolith
