#include "cli/ScanRun.h"

#include "support/Engine.h"

#include <gtest/gtest.h>

using namespace aerolith;

namespace {

class ScanRunTest : public testing::Test, protected ManualSurroundings
{
protected:
    void start(int cycles, std::optional<double> interval = {})
    {
        m_run.emplace(
            around(m_wifi, m_location), cycles, interval, [] {},
            [this](RunOutcome outcome) { m_outcome = outcome; });
    }

    /// Performs the cycle that is due, if any.
    bool performCycle()
    {
        main.drain();
        const bool performed = scanTasks.runOne();
        main.drain();
        return performed;
    }

    FakeWiFiClient m_wifi;
    FakeLocationManager m_location;
    std::optional<RunOutcome> m_outcome;
    std::optional<ScanRun> m_run;
};

} // namespace

TEST_F(ScanRunTest, BeginsOnceTheUserHasDecidedAndNeverTwice)
{
    start(1);
    EXPECT_EQ(m_location.requests, 1);
    m_location.change(CLAuthorizationStatus::notDetermined);
    EXPECT_FALSE(performCycle());
    m_location.change(CLAuthorizationStatus::denied);
    m_location.change(CLAuthorizationStatus::authorizedAlways);
    EXPECT_TRUE(performCycle());
    EXPECT_EQ(m_outcome, RunOutcome::completed);
    main.advance(Seconds(60));
    EXPECT_FALSE(performCycle()) << "the scanner's own start stays out of it";
}

TEST_F(ScanRunTest, RunsItsCyclesAtTheIntervalAndJudgesTheLast)
{
    start(3, 7.0);
    m_location.change(CLAuthorizationStatus::authorizedAlways);
    for (const bool fails : {true, false, true}) {
        EXPECT_FALSE(m_outcome);
        m_wifi.air.scan = QList<CWNetwork>();
        if (fails) {
            m_wifi.air.scan = Error{QStringLiteral("The Wi-Fi radio is off")};
        }
        EXPECT_TRUE(performCycle());
        main.advance(Seconds(6.5));
        EXPECT_FALSE(performCycle());
        main.advance(Seconds(0.5));
    }
    EXPECT_EQ(m_outcome, RunOutcome::lastCycleFailed);
}

TEST_F(ScanRunTest, WaitsForAnInterfaceThatHasGone)
{
    start(4, 1.0);
    m_location.change(CLAuthorizationStatus::authorizedAlways);
    for (const bool present : {true, false, true, false}) {
        EXPECT_FALSE(m_outcome);
        m_wifi.setPresent(present);
        EXPECT_TRUE(performCycle());
        main.advance(Seconds(1));
    }
    EXPECT_EQ(m_run->cyclesEnded(), 2);
    EXPECT_EQ(m_outcome, RunOutcome::noInterface) << "the last cycle's";

    m_outcome.reset();
    start(4, 1.0);
    m_location.change(CLAuthorizationStatus::authorizedAlways);
    EXPECT_TRUE(performCycle());
    EXPECT_EQ(m_outcome, RunOutcome::noInterface) << "a machine that has none";
}
