#include "ui/detail/NetworkDetailView.h"

#include "ui/ViewDriver.h"
#include "ui/detail/CustomSignalChart.h"

#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// The details of the first access point that the scanner lists.
class NetworkDetailViewTest : public ViewDriver
{
protected:
    NetworkDetailViewTest()
    {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(&view);
        window.resize(500, 500);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        scan(network(u"a"_s, u"Cafe"_s));
    }

    const QWidget& whole() override { return view; }

    void scan(const CWNetwork& result)
    {
        engine.scanner->clearNetworks();
        ViewDriver::scan({result});
        publish();
    }

    void publish()
    {
        view.showNetwork(engine.scanner->networks().first());
        settle();
    }

    QLineEdit& value(const QString& name) { return child<QLineEdit>(name + u"Value"_s); }

    QVariantAnimation& drawing() { return child<QVariantAnimation>(u"drawing"_s); }

    bool isDrawing() { return drawing().state() != QVariantAnimation::Stopped; }

    QWidget window;
    NetworkDetailView view{*engine.scanner, {engine.main, texts, files.exporter}};
    CustomSignalChart& chart = *view.findChild<CustomSignalChart*>();
};

} // namespace

TEST_F(NetworkDetailViewTest, LeavesADotThatScrollsAwayFromThePointer)
{
    const QPoint dot(chart.contentsRect().left() + 2, chart.contentsRect().center().y());
    QCursor::setPos(chart.mapToGlobal(dot));
    QTest::mouseMove(&chart, dot);
    ASSERT_TRUE(chart.hoveredPointId());
    auto& scrollBar = *view.findChild<QScrollArea*>()->verticalScrollBar();
    scrollBar.setValue(40);
    EXPECT_FALSE(chart.hoveredPointId());
    scrollBar.setValue(0);
    EXPECT_TRUE(chart.hoveredPointId());
}

TEST_F(NetworkDetailViewTest, ChangesTextsInPlace)
{
    value(u"ssid"_s).setSelection(0, 2);
    engine.cycle({network(u"a"_s, u"Cafe"_s, -71)});
    publish();
    EXPECT_EQ(value(u"currentRssi"_s).text(), u"-71 dBm"_s);
    EXPECT_EQ(value(u"ssid"_s).selectedText(), u"Ca"_s);
    EXPECT_EQ(chart.accessibleDescription(),
              u"\u2068Cafe\u2069, latest -71 dBm, lowest -71 dBm, highest -50 dBm, 2 samples"_s);

    CWNetwork german = network(u"a"_s, u"Cafe"_s, -95);
    german.countryCode = u"DE"_s;
    scan(german);
    EXPECT_EQ(value(u"country"_s).text(), u"DE"_s);
    EXPECT_EQ(value(u"snr"_s).text(), u"-5 dB"_s);
    scan(network(u"a"_s, u"Cafe"_s));
    EXPECT_FALSE(value(u"country"_s).isVisible());
}

TEST_F(NetworkDetailViewTest, BeginsAnotherChartForAnotherAccessPointOnly)
{
    EXPECT_TRUE(isDrawing());
    drawing().setCurrentTime(1500);
    EXPECT_FALSE(isDrawing());
    engine.runCycle();
    publish();
    EXPECT_FALSE(isDrawing()) << "the same";
    window.hide();
    window.show();
    publish();
    EXPECT_FALSE(isDrawing()) << "the same in a window that was hidden";

    scan(network(u"b"_s, u"Cafe"_s));
    EXPECT_TRUE(isDrawing());
    view.hide();
    EXPECT_FALSE(isDrawing());
    view.show();
    publish();
    EXPECT_TRUE(isDrawing()) << "chosen once more";
}

TEST_F(NetworkDetailViewTest, ShowsNamesAsTheyAre)
{
    const QString shown = u"<b>&x</b> %1\uFFFD\uFFFD[*]"_s;
    scan(network(u"c"_s, u"<b>&x</b> %1\n\u202E[*]"_s));
    EXPECT_EQ(value(u"ssid"_s).text(), shown);
    EXPECT_EQ(chart.accessibleDescription(),
              u"\u2068"_s + shown + u"\u2069, latest -50 dBm, lowest -50 dBm, highest -50 dBm, 1 sample"_s);
    const auto neededWidth = [this] {
        return view.findChild<QScrollArea*>()->widget()->minimumSizeHint().width();
    };
    const int width = neededWidth();
    EXPECT_EQ(view.windowTitle(), shown + u"[*]"_s) << "what a window shows as one [*]";
    EXPECT_EQ(value(u"ssid"_s).focusPolicy(), Qt::ClickFocus);
    scan(network(u"d"_s, QString(60, u'W')));
    EXPECT_EQ(neededWidth(), width);
    EXPECT_EQ(value(u"ssid"_s).focusPolicy(), Qt::StrongFocus) << "keys reach what is cut off";
}

TEST_F(NetworkDetailViewTest, ScrollsByKeys)
{
    auto& area = *view.findChild<QScrollArea*>();
    QTest::keyClick(&area, Qt::Key_PageDown);
    const int page = area.verticalScrollBar()->value();
    EXPECT_GT(page, 0);
    QTest::keyClick(&value(u"ssid"_s), Qt::Key_PageUp);
    EXPECT_LT(area.verticalScrollBar()->value(), page) << "also from within";
}

} // namespace aerolith
