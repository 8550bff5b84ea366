// Checks that nobody asks for.

#include "support/Printing.h"
#include "update/SettingKeys.h"
#include "update/UpdateWorld.h"

#include <gtest/gtest.h>

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds hour = std::chrono::hours(1);

class AutomaticCheckTest : public testing::Test, public UpdateWorld
{
protected:
    static void SetUpTestSuite() { startMainLoop(); }

    /// Starts an updater whose user wants automatic checks, so long after the last one; absent: never.
    void startLater(std::optional<Seconds> afterLastCheck)
    {
        defaults.setInteger(1, SettingKeys::automaticUpdateChecks);
        if (afterLastCheck) {
            const auto last = main.now() - std::chrono::duration_cast<std::chrono::seconds>(*afterLastCheck);
            defaults.setInteger(std::chrono::floor<std::chrono::seconds>(last).time_since_epoch().count(),
                                SettingKeys::lastUpdateCheck);
        }
        makeUpdater();
        updater->start();
    }

    /// Whether so many checks have reached the server, and none has begun beside them since the last call.
    [[nodiscard]] bool hasChecked(int times)
    {
        const bool enough = handleEventsUntil([&] { return server.requests.size() >= times; });
        const auto last = defaults.integerForKey(SettingKeys::lastUpdateCheck);
        const bool isNew = std::exchange(m_times, times) != times;
        return enough && server.requests.size() == times && (std::exchange(m_last, last) != last) == isNew;
    }

private:
    int m_times = 0;
    std::optional<qint64> m_last;
};

} // namespace

TEST_F(AutomaticCheckTest, AreOffUntilTheUserWantsThem)
{
    updater->start();
    main.advance(50 * hour);
    EXPECT_EQ(main.runningTimers(), 0U);
    EXPECT_FALSE(updater->checksAutomatically());
    EXPECT_EQ(defaults.integerForKey(SettingKeys::lastUpdateCheck), std::nullopt);

    updater->setChecksAutomatically(true);
    EXPECT_TRUE(hasChecked(1));
    updater->setChecksAutomatically(false);
    EXPECT_EQ(main.runningTimers(), 0U);
    main.advance(50 * hour);
    EXPECT_TRUE(hasChecked(1));

    runningVersion = u"unknown"_s;
    startLater({});
    EXPECT_EQ(main.runningTimers(), 0U) << "there is nothing to compare with";
    feed.reset();
    startLater({});
    EXPECT_EQ(main.runningTimers(), 0U) << "there is nothing to check";
}

TEST_F(AutomaticCheckTest, AreMadeOnceADay)
{
    startLater(23 * hour);
    EXPECT_TRUE(server.requests.isEmpty());
    main.advance(1 * hour);
    EXPECT_TRUE(hasChecked(1));
    main.advance(23.5 * hour);
    EXPECT_TRUE(hasChecked(1));
    main.advance(0.5 * hour);
    EXPECT_TRUE(hasChecked(2));

    startLater({});
    main.advance(10 * hour);
    check();
    EXPECT_TRUE(hasChecked(3));
    updater->dismiss();
    main.advance(23 * hour);
    EXPECT_TRUE(hasChecked(3)) << "the user's own counts";
    main.setClock(main.now() - std::chrono::years(3));
    main.advance(1 * hour);
    EXPECT_TRUE(hasChecked(4)) << "the clock was wrong before";
}

TEST_F(AutomaticCheckTest, SpeakOnlyOfWhatIsNew)
{
    announce("1.0", "the same program");
    startLater(24 * hour);
    EXPECT_TRUE(hasChecked(1));
    EXPECT_TRUE(isIn<UpdateIdle>());

    server.answer(feedPath, "HTTP/1.1 500 Oops\r\nContent-Length: 0\r\n\r\n");
    main.advance(24 * hour);
    QStringList lines;
    EXPECT_TRUE(handleEventsUntil([&] { return !(lines = log.take()).isEmpty(); }));
    EXPECT_EQ(lines,
              QStringList{u"Automatic update check failed: localhost answered with the HTTP status 500"_s});
    EXPECT_TRUE(isIn<UpdateIdle>());

    announce("1.1", "new program");
    main.advance(24 * hour);
    EXPECT_TRUE(handleEventsUntil([this] { return isIn<UpdateAvailable>(); }));
    EXPECT_TRUE(hasChecked(3));
    main.advance(24 * hour);
    EXPECT_TRUE(hasChecked(3)) << "the user is still being asked";
}

TEST_F(AutomaticCheckTest, GiveWayToTheUser)
{
    server.answer(feedPath, "", HttpsServer::Behind::silence);
    startLater(24 * hour);
    EXPECT_TRUE(hasChecked(1));
    announce("1.0", "the same program");
    check();
    EXPECT_TRUE(isIn<UpdateUpToDate>()) << "told even so";
}

} // namespace aerolith
