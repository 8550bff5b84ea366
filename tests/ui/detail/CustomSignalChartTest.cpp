#include "ui/detail/CustomSignalChart.h"

#include "support/Printing.h"
#include "ui/Colours.h"
#include "ui/detail/SampleHistory.h"

#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 30;
constexpr int width = 600;
constexpr SignalChartParameters full{
    .showMiniVersion = false, .showNoiseLevel = true, .animate = false, .lineWidth = 2.5, .areaOpacity = 0.5};

/// A chart 600 wide in a window of its own, with room around it.
class CustomSignalChartTest : public testing::Test
{
protected:
    /// Away from the chart: it would go on reading where another test has left the pointer.
    CustomSignalChartTest() { QCursor::setPos(QApplication::primaryScreen()->geometry().bottomRight()); }

    void show(const SignalHistoryList& history, const SignalChartParameters& parameters = full)
    {
        chart = std::make_unique<CustomSignalChart>(parameters);
        chart->setContentsMargins(margin, margin, margin, margin);
        chart->resize(width + 2 * margin, chart->sizeHint().height());
        chart->showHistory(history);
        chart->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(chart.get()));
        QCoreApplication::processEvents();
    }

    /// Takes running animations to that moment and lets them stand there; at its end one is over.
    void advance(const QString& name, int milliseconds) const
    {
        for (auto* animation : chart->findChildren<QVariantAnimation*>(name)) {
            animation->pause();
            const bool isForward = animation->direction() == QVariantAnimation::Forward;
            animation->setCurrentTime(isForward ? milliseconds : animation->duration() - milliseconds);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    bool isAnimating() const
    {
        QCoreApplication::processEvents();
        const auto animations = chart->findChildren<QVariantAnimation*>();
        return std::any_of(animations.cbegin(), animations.cend(), [](const QVariantAnimation* animation) {
            return animation->state() != QVariantAnimation::Stopped;
        });
    }

    void point(QPoint position) const
    {
        QTest::mouseMove(chart.get(), QPoint(margin, margin) + position);
        QCoreApplication::processEvents();
    }

    QImage grab() const { return chart->grab().toImage(); }

    QColor pixel(QPoint position) const { return grab().pixelColor(QPoint(margin, margin) + position); }

    const QColor green = Theme::green(QApplication::palette());
    std::unique_ptr<CustomSignalChart> chart;
};

} // namespace

TEST_F(CustomSignalChartTest, DrawsTheSignalLineOnceWhenItIsFirstSeen)
{
    SignalChartParameters animated = full;
    animated.animate = true;
    show(history({-60, -60}), animated);
    EXPECT_TRUE(isAnimating());
    advance(u"drawing"_s, 750);
    EXPECT_EQ(pixel({280, 125}), green);
    EXPECT_NE(pixel({320, 125}), green) << "only half of it is drawn";
    EXPECT_EQ(pixel({598, 125}), green) << "the dot";

    chart->hide();
    EXPECT_FALSE(isAnimating());
    chart->show();
    EXPECT_EQ(pixel({450, 125}), green) << "whole";
    chart->showHistory(history({-60, -60, -60}));
    EXPECT_FALSE(isAnimating());

    chart->startOver();
    EXPECT_TRUE(isAnimating());
}

TEST_F(CustomSignalChartTest, EnlargesTheDotThatThePointerRestsOn)
{
    // The middle one on a peak: nothing else green above it.
    const SignalHistoryList samples = history({-100, -40, -100});
    show(samples);
    const QPoint dot(300, 250 * 5 / 70);
    const QPoint left = dot - QPoint(5, 0);
    const QPoint above = dot - QPoint(0, 5);
    point(left);
    EXPECT_FALSE(chart->hoveredPointId().has_value()) << "beside the dot at rest";
    point(dot);
    EXPECT_TRUE(isAnimating());
    advance(u"dotGrowth"_s, 50);
    point(left);
    EXPECT_EQ(chart->hoveredPointId(), samples[1].id) << "on the dot as large as it becomes";
    advance(u"dotGrowth"_s, 200);
    EXPECT_EQ(pixel(above), green);
    point(dot - QPoint(8, 0));
    point(left);
    EXPECT_FALSE(chart->hoveredPointId().has_value()) << "beside it, however large it still is";
    advance(u"dotGrowth"_s, 200);
    EXPECT_FALSE(isAnimating());
    EXPECT_NE(pixel(above), green);
}

TEST_F(CustomSignalChartTest, ReadsOutPastItsEdges)
{
    show(history({-40, -100, -100, -40}));
    for (const auto& [dot, box] : {std::pair(0, 50), std::pair(width, width - 50)}) {
        const QPoint aboveTop(box, -2);
        EXPECT_GT(pixel(aboveTop).lightness(), 200);
        point({dot, 250 * 5 / 70});
        advance(u"dotGrowth"_s, 200);
        EXPECT_LT(pixel(aboveTop).lightness(), 100) << "beside the dot, towards the middle";
    }
}

TEST_F(CustomSignalChartTest, KeepsTheHoveredSampleWhileTheHistoryGoesOn)
{
    SignalHistoryList samples = history({-60, -60, -60});
    show(samples);
    point({300, 125});
    const QUuid hovered = samples[1].id;
    samples = samples.appended({QUuid::createUuid(), {}, -60, -90}, 3);
    chart->showHistory(samples);
    QCoreApplication::processEvents();
    EXPECT_EQ(chart->hoveredPointId(), hovered);
    chart->showHistory(history({-60}));
    const QImage gone = grab();

    chart->startOver();
    EXPECT_FALSE(chart->hoveredPointId().has_value());
    EXPECT_FALSE(isAnimating());
    EXPECT_EQ(grab(), gone) << "one that is gone highlights nothing";
}

TEST_F(CustomSignalChartTest, StandsStillWhereItIsHiddenWithTheFocus)
{
    show(history({-61, -62}));
    QWidget window;
    QLineEdit other(&window);
    chart->setParent(&window);
    chart->show();
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    chart->setFocus();
    QTest::keyClick(chart.get(), Qt::Key_End);
    advance(u"dotGrowth"_s, 200);
    chart->hide();
    EXPECT_TRUE(other.hasFocus());
    EXPECT_FALSE(isAnimating());
    chart->setParent(nullptr);
}

TEST_F(CustomSignalChartTest, GoesFromSampleToSampleByKeys)
{
    const SignalHistoryList samples = history({-61, -62, -63});
    show(samples);
    chart->clearFocus();

    chart->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(chart->hoveredPointId(), samples[2].id);
    const QList<std::pair<Qt::Key, qsizetype>> steps{
        {Qt::Key_Left, 1}, {Qt::Key_Home, 0}, {Qt::Key_Left, 0}, {Qt::Key_End, 2}, {Qt::Key_Right, 2}};
    for (const auto& [key, shown] : steps) {
        QTest::keyClick(chart.get(), key);
        EXPECT_EQ(chart->hoveredPointId(), samples[shown].id) << key;
    }
    EXPECT_EQ(chart->accessibleName(), u"Signal History, RSSI: -63 dBm, Noise: -90 dBm"_s);
    chart->clearFocus();
    EXPECT_FALSE(chart->hoveredPointId().has_value());
    EXPECT_EQ(chart->accessibleName(), u"Signal History"_s);

    chart->showHistory({});
    chart->setFocus(Qt::TabFocusReason);
    QTest::keyClick(chart.get(), Qt::Key_Left);
    EXPECT_FALSE(chart->hoveredPointId().has_value());
}

TEST_F(CustomSignalChartTest, LeavesOutAllButItsSignalInTheCompactForm)
{
    const QColor red = Theme::red(QApplication::palette());
    const SignalHistoryList samples = history({-50, -50, -50}, -53);
    show(samples);
    const QImage whole = grab().copy(margin, margin, width, 250);
    EXPECT_EQ(whole.pixelColor(450, 200), red) << "the noise";
    EXPECT_NE(whole.pixelColor(450, 25), whole.pixelColor(450, 30)) << "the grid";
    EXPECT_NE(whole.copy(0, 60, 30, 60), whole.copy(450, 60, 30, 60)) << "the values";

    SignalChartParameters compact = full;
    compact.showMiniVersion = true;
    show(samples, compact);
    const QImage small = grab().copy(margin, margin, width, 50);
    EXPECT_EQ(small.pixelColor(450, 25), green);
    EXPECT_FALSE(coloursOf(small).contains(red.rgb()));
    EXPECT_EQ(coloursOf(small.copy(0, 0, width, 22)).size(), 1) << "no dot, grid or values";
    EXPECT_NE(small.pixelColor(450, 30), small.pixelColor(450, 48)) << "an area that fades";
}

TEST_F(CustomSignalChartTest, DrawsAnyStrength)
{
    constexpr qint64 least = std::numeric_limits<qint32>::min();
    constexpr qint64 most = std::numeric_limits<qint32>::max();
    show(history({-50, -50}, 100));
    EXPECT_TRUE(QTest::qWaitForWindowActive(chart.get()));
    const QImage noiseBeyondTheEdges = grab();
    for (const qint64 noise : {least, most}) {
        chart->showHistory(history({-50, -50}, noise));
        EXPECT_EQ(grab(), noiseBeyondTheEdges);
    }
    chart->showHistory(history({least, most, least}, most));
    EXPECT_EQ(pixel({300, 1}), green) << "the strongest at the top";
    EXPECT_EQ(pixel({1, 249}), green);
}

} // namespace aerolith
