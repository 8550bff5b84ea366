#include "platform/linux/AwaitScan.h"

#include "platform/linux/StoppableScanEvents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <vector>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nl80211::BootTime;
using nl80211::ScanEvent;
using nl80211::ScanStage;
using testing::ElementsAre;

struct FakeService : ScanService
{
    Failure obstacle() override { return standing; }

    Failure request(const std::optional<QByteArray>& ssid) override
    {
        requests.push_back(ssid);
        return {};
    }

    std::optional<BootTime> lastScan() override
    {
        const auto newest = lastScans.front();
        if (lastScans.size() > 1) {
            lastScans.pop_front();
        }
        return newest;
    }

    Failure standing;
    /// Answers in turn; the last one stays.
    std::deque<std::optional<BootTime>> lastScans{std::nullopt};
    std::vector<std::optional<QByteArray>> requests;
};

using Script = std::deque<std::optional<ScanEvent>>;

// Tells what it is given, nothing meaning that the deadline passes; after that, every deadline passes at
// once.
struct ScriptedEvents : nl80211::ScanEvents
{
    explicit ScriptedEvents(Script events) : script(std::move(events)) {}

    Result<std::optional<ScanEvent>> wait(Deadline deadline) override
    {
        deadlines.push_back(deadline);
        if (failure) {
            return *failure;
        }
        if (script.empty()) {
            return std::optional<ScanEvent>();
        }
        const auto event = script.front();
        script.pop_front();
        return event;
    }

    Script script;
    std::optional<Error> failure;
    std::vector<Deadline> deadlines;
};

const ScanEvent started{.stage = ScanStage::started};
const ScanEvent finished{.stage = ScanStage::finished};
const ScanEvent aborted{.stage = ScanStage::aborted};

ScanEvent finishedFor(const QList<QByteArray>& ssids)
{
    return {.stage = ScanStage::finished, .ssids = ssids};
}

constexpr BootTime begun = 100s;

class AwaitScanTest : public testing::Test
{
protected:
    /// Since when to listen, or nothing where the scan failed.
    std::optional<BootTime> await(Script script, const std::optional<QByteArray>& ssid = {})
    {
        ScriptedEvents events(std::move(script));
        const auto result = awaitScan(m_service, events, {begun, m_underWaySince, m_service.lastScan()}, ssid,
                                      [this](BootTime since) { return m_heard && *m_heard >= since; });
        m_error = result.ok() ? QString() : result.error().description;
        return result.ok() ? std::optional(result.value()) : std::nullopt;
    }

    FakeService m_service;
    std::optional<BootTime> m_underWaySince;
    /// When an access point, of the name that is scanned for, was last heard.
    std::optional<BootTime> m_heard;
    QString m_error;
};

TEST_F(AwaitScanTest, aScanBegunSinceTheRequestAnswers)
{
    EXPECT_EQ(await({started, finished}), begun);
    EXPECT_EQ(await({started, finished, started, finished}, "x"_ba), begun);
    EXPECT_THAT(m_service.requests, ElementsAre(std::nullopt, "x"_ba, "x"_ba));
}

TEST_F(AwaitScanTest, aScanUnderWayAnswersAFullScanAlone)
{
    EXPECT_EQ(await({finished}), begun - 20s);
    EXPECT_EQ(await({std::nullopt, finished}), begun - 20s) << "it takes longer than one may take to begin";
    m_service.lastScans = {begun - 3s};
    EXPECT_EQ(await({finished}), begun - 4s)
        << "it began after the one before had ended, of which news is late";
    m_underWaySince = begun - 5s;
    EXPECT_EQ(await({finished}), begun - 5s) << "its start was seen";
    m_underWaySince = begun - 60s;
    EXPECT_EQ(await({finished}), begun - 20s);
    EXPECT_EQ(await({started, finished}), begun) << "it has ended meanwhile";

    EXPECT_EQ(await({finished}, "x"_ba), std::nullopt);
}

TEST_F(AwaitScanTest, aScanForANameEndsWhereTheNameIsHeard)
{
    m_heard = begun - 3s;
    EXPECT_EQ(await({finished, started, finished}, "x"_ba), begun - 20s) << "another scan has found it";
    m_service.lastScans = {begun - 1s};
    EXPECT_EQ(await({finished, started, finished}, "x"_ba), begun - 11s) << "found before that one";
    m_heard = begun + 1s;
    EXPECT_EQ(await({started, finishedFor({""})}, "x"_ba), begun) << "it need not have asked for it";
}

TEST_F(AwaitScanTest, aNameHeardLatelyIsAskedForOnlyWhereAFullScanMissesIt)
{
    m_heard = begun - 20s;
    EXPECT_EQ(
        await({started, finishedFor({""}), started, finishedFor({"x"}), started, finishedFor({"x"})}, "x"_ba),
        begun);
    EXPECT_THAT(m_service.requests, ElementsAre(std::nullopt, "x"_ba, "x"_ba));
}

TEST_F(AwaitScanTest, aScanForANameAsksTwiceBeforeItGivesUp)
{
    const auto toOther = finishedFor({"", "y"});
    const auto toX = finishedFor({"", "x"});
    m_service.lastScans = {begun - 20s};
    EXPECT_EQ(await({started, toX, started, toX}, "x"_ba), begun);
    EXPECT_EQ(m_service.requests.size(), 2U);
    EXPECT_EQ(await({started, toX, started, toOther, toX}, "x"_ba), std::nullopt);
    m_service.requests.clear();
    EXPECT_EQ(await({started, toOther, started, aborted, started, toX, started, toX}, "x"_ba), begun);
    EXPECT_EQ(m_service.requests.size(), 4U) << "asked for anew after each that did not ask";
    EXPECT_EQ(await({started, finishedFor({"y"})}), begun);
}

TEST_F(AwaitScanTest, anAbortedScanAnswersNothing)
{
    EXPECT_EQ(await({started, aborted, started, finished}), begun);
    EXPECT_EQ(await({started, aborted, finished}, "x"_ba), std::nullopt);

    m_service.standing = Error{u"The Wi-Fi radio is off"_s};
    EXPECT_EQ(await({started, aborted, started, finished}), std::nullopt);
    EXPECT_EQ(m_error, u"The Wi-Fi radio is off"_s);
}

TEST_F(AwaitScanTest, whereNoScanComesTheNewestHasToDo)
{
    m_service.lastScans = {begun - 7s};
    m_heard = begun - 17s;
    EXPECT_EQ(await({}), begun - 17s);
    EXPECT_EQ(await({started}), begun - 17s);
    m_service.lastScans = {begun + 3s};
    EXPECT_EQ(await({}), std::nullopt) << "what has heard nothing was no scan";

    m_heard = begun;
    m_service.lastScans = {begun - 40s, begun + 14s};
    EXPECT_EQ(await({}), begun - 6s) << "a long one has just ended";
    m_service.lastScans = {begun - 3s, begun + 14s};
    EXPECT_EQ(await({}), begun - 4s);

    m_service.lastScans = {begun - 15s};
    EXPECT_EQ(await({}), std::nullopt);
    EXPECT_EQ(m_error, u"The Wi-Fi scan did not end in time"_s);
    m_service.lastScans = {std::nullopt};
    EXPECT_EQ(await({}), std::nullopt);

    m_service.lastScans = {begun - 7s};
    m_service.standing = Error{u"The Wi-Fi interface wlan0 is gone"_s};
    EXPECT_EQ(await({}), std::nullopt);
    EXPECT_EQ(m_error, u"The Wi-Fi interface wlan0 is gone"_s);
}

TEST_F(AwaitScanTest, lostEventsEndTheWait)
{
    ScriptedEvents events({started, finished});
    events.failure = Error{u"lost"_s};
    EXPECT_EQ(awaitScan(m_service, events, {begun}, {}, {}).error().description, u"lost"_s);
}

TEST_F(AwaitScanTest, whatAStallHasMadeOldIsNoAnswer)
{
    const std::atomic<bool> stopped = false;
    const auto told = std::make_shared<ScriptedEvents>(Script{started, finished});
    const auto deadline = nl80211::ScanEvents::Deadline::max();
    EXPECT_EQ(StoppableScanEvents(told, stopped).wait(deadline).value()->stage, ScanStage::started);
    // Any time at all is too long.
    EXPECT_FALSE(StoppableScanEvents(told, stopped, BootTime(-1)).wait(deadline).ok());
}

TEST_F(AwaitScanTest, aStartGivesMoreTimeButOnlyOnce)
{
    ScriptedEvents events({started, aborted, started, finished});
    EXPECT_TRUE(awaitScan(m_service, events, {begun}, {}, {}).ok());
    ASSERT_EQ(events.deadlines.size(), 4U);
    EXPECT_EQ(events.deadlines[1] - events.deadlines[0], 15s);
    EXPECT_EQ(events.deadlines[3], events.deadlines[1]);
}

} // namespace
} // namespace aerolith
