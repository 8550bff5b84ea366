#include "platform/linux/ScanWatch.h"

#include "platform/linux/FakeKernel.h"
#include "support/MainLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/eventfd.h>
#include <unistd.h>

namespace aerolith {
namespace {

using nl80211::bootTimeNow;
using nl80211::ScanStage;
using testing::AllOf;
using testing::Ge;
using testing::Le;
using testing::Optional;

constexpr std::uint32_t wlan0 = 0;

class ScanWatchTest : public testing::Test
{
protected:
    ScanWatchTest()
    {
        startMainLoop();
        m_kernel.descriptor = m_readable;
    }

    ~ScanWatchTest() override { close(m_readable); }

    void tell(const QList<ScanStage>& stages)
    {
        for (const auto stage : stages) {
            m_kernel.tell(stage);
        }
        eventfd_write(m_readable, 1);
        handleWaitingEvents();
        eventfd_t count = 0;
        eventfd_read(m_readable, &count);
    }

    int m_readable = eventfd(0, EFD_NONBLOCK);
    FakeKernel m_kernel;
    nl80211::ScansUnderWay m_scans;
};

TEST_F(ScanWatchTest, knowsSinceWhenAScanIsUnderWay)
{
    const auto made = bootTimeNow();
    const ScanWatch watch(m_kernel, m_scans);
    const auto idle = bootTimeNow();
    EXPECT_EQ(m_scans.since(wlan0), std::nullopt) << "one may have begun before";

    tell({ScanStage::started});
    EXPECT_THAT(m_scans.since(wlan0), Optional(AllOf(Ge(made), Le(idle)))) << "however late that is read";
    EXPECT_EQ(m_scans.since(wlan0 + 1), std::nullopt) << "another interface";

    tell({ScanStage::finished});
    const auto rested = bootTimeNow();
    EXPECT_THAT(m_scans.since(wlan0), Optional(AllOf(Ge(idle), Le(rested))))
        << "the next one is yet to be read";
    tell({ScanStage::started, ScanStage::aborted, ScanStage::started});
    EXPECT_THAT(m_scans.since(wlan0), Optional(AllOf(Ge(idle), Le(rested))))
        << "all that are waiting are read";
}

TEST_F(ScanWatchTest, knowsNothingWhereEventsAreMissing)
{
    const ScanWatch watch(m_kernel, m_scans);
    tell({ScanStage::started});
    m_kernel.eventsFailure = Error{QStringLiteral("lost")};
    tell({});
    EXPECT_EQ(m_scans.since(wlan0), std::nullopt);

    m_kernel.tellsEvents = false;
    const ScanWatch blind(m_kernel, m_scans);
    EXPECT_EQ(m_scans.since(wlan0), std::nullopt);
}

} // namespace
} // namespace aerolith
