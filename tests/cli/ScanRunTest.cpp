#include "cli/ScanRun.h"

#include "support/FakeWiFi.h"
#include "support/ManualMainQueue.h"
#include "support/ManualSerialQueue.h"
#include "support/MemoryDefaults.h"
#include "support/RecordingLog.h"

#include <gtest/gtest.h>

using namespace aerolith;

namespace {

class ScanRunTest : public testing::Test
{
protected:
    void start(int cycles, std::optional<double> interval = {})
    {
        m_run.emplace(
            Surroundings{.wifiClient = m_wifi,
                         .locationManager = m_location,
                         .userDefaults = m_defaults,
                         .mainQueue = m_main,
                         .makeSerialQueue = m_tasks.factory(),
                         .clock = m_main,
                         .log = m_log,
                         .locale = {}},
            cycles, interval, [] {}, [this](RunOutcome outcome) { m_outcome = outcome; });
    }

    /// Performs the cycle that is due, if any.
    bool performCycle()
    {
        m_main.drain();
        const bool performed = m_tasks.runOne();
        m_main.drain();
        return performed;
    }

    ManualMainQueue m_main;
    ManualSerialTasks m_tasks;
    MemoryDefaults m_defaults;
    RecordingLog m_log;
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
    m_main.advance(Seconds(60));
    EXPECT_FALSE(performCycle()) << "the scanner's own start stays out of it";
}

TEST_F(ScanRunTest, RunsItsCyclesAtTheIntervalAndJudgesTheLast)
{
    start(3, 7.0);
    m_location.change(CLAuthorizationStatus::authorizedAlways);
    m_wifi.air.scan = Error{QStringLiteral("The Wi-Fi radio is off")};
    EXPECT_TRUE(performCycle());
    m_main.advance(Seconds(6.5));
    EXPECT_FALSE(performCycle());
    m_wifi.air.scan = QList<CWNetwork>();
    m_main.advance(Seconds(0.5));
    EXPECT_TRUE(performCycle());
    m_wifi.air.scan = Error{QStringLiteral("The Wi-Fi radio is off")};
    EXPECT_FALSE(m_outcome);
    m_main.advance(Seconds(7));
    EXPECT_TRUE(performCycle());
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
        m_main.advance(Seconds(1));
    }
    EXPECT_EQ(m_run->cyclesEnded(), 2);
    EXPECT_EQ(m_outcome, RunOutcome::noInterface) << "the last cycle's";

    m_outcome.reset();
    start(4, 1.0);
    m_location.change(CLAuthorizationStatus::authorizedAlways);
    EXPECT_TRUE(performCycle());
    EXPECT_EQ(m_outcome, RunOutcome::noInterface) << "a machine that has none";
}
