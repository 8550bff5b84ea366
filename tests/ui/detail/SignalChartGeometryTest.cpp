#include "ui/detail/SignalChartGeometry.h"

#include "ui/detail/SampleHistory.h"

#include <gtest/gtest.h>

#include <limits>

namespace aerolith {

namespace {

constexpr QSizeF fullSize(600, 250);

SignalChartGeometry geometry(const SignalHistoryList& history)
{
    return {history, fullSize};
}

/// Where a path's segments begin and end.
QList<QPointF> corners(const QPainterPath& path)
{
    QList<QPointF> corners;
    for (int i = 0; i < path.elementCount(); ++i) {
        if (path.elementAt(i).isCurveTo()) {
            i += 2;
        }
        corners.append(path.elementAt(i));
    }
    return corners;
}

} // namespace

TEST(SignalChartScale, ShowsEverySampleWithRoomAndAGridOfSixParts)
{
    constexpr qint64 least = std::numeric_limits<qint32>::min();
    constexpr qint64 most = std::numeric_limits<qint32>::max();

    struct
    {
        SignalHistoryList history;
        SignalRange range;
        QList<qint64> grid;
    } const cases[] = {
        {{}, {-100, 0}, {0, -16, -32, -48, -64, -80, -96}},
        {history({-50}), {-55, -45}, {-45, -46, -47, -48, -49, -50, -51, -52, -53, -54, -55}},
        {history({-55, -82, -60}, -200), {-87, -50}, {-50, -56, -62, -68, -74, -80, -86}},
        // The limits of what a radio may report.
        {history({least, most}),
         {least - 5, most + 5},
         {2147483652, 1431655768, 715827884, 0, -715827884, -1431655768, -2147483652}},
    };

    for (const auto& [samples, range, grid] : cases) {
        SCOPED_TRACE(testing::PrintToString(range.min));
        EXPECT_EQ(signalRange(samples), range);
        EXPECT_EQ(gridValues(range), grid);
    }
}

TEST(SignalChartGeometry, SpreadsTheSamplesFromEdgeToEdgeAboveAClosedArea)
{
    const SignalChartGeometry three = geometry(history({-55, -82, -60}));
    const QList<QPointF> expected{{0, 250.0 * 5 / 37}, {300, 250.0 * 32 / 37}, {600, 250.0 * 10 / 37}};
    EXPECT_EQ(corners(three.signalLine()), expected);
    EXPECT_EQ(corners(three.noiseLine()).last(), QPointF(600, 250.0 * 40 / 37)) << "below the bottom edge";
    EXPECT_EQ(three.gridLines().first(), QLineF(0, 0, 600, 0));
    EXPECT_NEAR(three.gridLines().last().y1(), 250.0 * 36 / 37, 1e-9);

    const SignalChartGeometry one = geometry(history({-50}));
    EXPECT_EQ(one.signalPoint(0), QPointF(0, 125));
    EXPECT_EQ(one.signalLine().length(), 0);
    EXPECT_EQ(corners(one.area()), (QList<QPointF>{{0, 250}, {0, 125}, {600, 250}, {0, 250}}));
    EXPECT_TRUE(geometry({}).area().isEmpty() && geometry({}).signalLine().isEmpty());
}

TEST(SignalChartGeometry, IsHorizontalAtEverySampleAndNeverOvershoots)
{
    const QPainterPath line = geometry(history({-80, -40, -40, -100, -50})).signalLine();
    ASSERT_EQ(line.elementCount(), 1 + 4 * 3);
    for (int i = 1; i < line.elementCount(); i += 3) {
        const QPointF start = line.elementAt(i - 1);
        const QPointF end = line.elementAt(i + 2);
        const double middle = (start.x() + end.x()) / 2;
        EXPECT_EQ(QPointF(line.elementAt(i)), QPointF(middle, start.y()));
        EXPECT_EQ(QPointF(line.elementAt(i + 1)), QPointF(middle, end.y()));
    }
    const double top = 250.0 * 5 / 70;
    EXPECT_EQ(line.boundingRect(), QRectF(0, top, 600, 250 - 2 * top));
}

TEST(TrimmedPath, EndsAtItsShareOfTheLengthAlongTheCurve)
{
    // Of very different lengths: a share of the segments or of the width is no share of the length.
    const QPainterPath line = geometry(history({-50, -100, -99, -99, -30})).signalLine();
    for (const double fraction : {0.0, 0.001, 0.5, 0.77, 1.0}) {
        SCOPED_TRACE(fraction);
        const QPainterPath drawn = trimmed(line, fraction);
        const double length = line.length() * fraction;
        EXPECT_NEAR(drawn.length(), length, 0.1);
        // On the whole line, not beside it.
        const QPointF there = line.pointAtPercent(line.percentAtLength(length));
        EXPECT_NEAR(drawn.currentPosition().x(), there.x(), 0.1);
        EXPECT_NEAR(drawn.currentPosition().y(), there.y(), 0.1);
    }
    EXPECT_TRUE(trimmed({}, 0.5).isEmpty());
}

} // namespace aerolith
