// The scan cycle: authorization, timing, the order of its steps, its failures and what overtakes it.

#include "model/Bssids.h"
#include "model/SettingKeys.h"
#include "support/Engine.h"
#include "support/Printing.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <limits>

using namespace aerolith;
using namespace Qt::StringLiterals;

namespace {

using Status = CLAuthorizationStatus;

class WiFiScannerTest : public testing::Test, public Engine
{
};

/// Lets time pass and runs what the timer starts; says how many cycles that were.
int cyclesWithin(Engine& engine, double seconds)
{
    int count = 0;
    for (int tenth = 0; tenth < qRound(seconds * 10); ++tenth) {
        engine.main.advance(Seconds(0.1));
        while (engine.scanTasks.runOne()) {
            engine.main.drain();
            ++count;
        }
    }
    return count;
}

void expectMapsInStep(const WiFiScanner& scanner)
{
    EXPECT_EQ(bssidsOf(scanner.allNetworks()), bssidsOf(scanner.networkHistory()));
    EXPECT_EQ(bssidsOf(scanner.allNetworks()), bssidsOf(scanner.lastSeenTimestamp()));
}

} // namespace

TEST(WiFiScanner, ReadsTheAuthorizationWhenItIsMade)
{
    const std::pair<Status, QStringList> cases[] = {
        {Status::notDetermined, {}},
        {Status::restricted, {u"Location access denied or restricted."_s}},
        {Status::denied, {u"Location access denied or restricted."_s}},
        {Status::authorizedAlways, {u"Location access granted."_s}},
        {Status::authorizedWhenInUse, {u"Location access granted."_s}},
        {static_cast<Status>(9), {u"Unknown location authorization status."_s}},
    };
    for (const auto& [status, lines] : cases) {
        Engine engine(status);
        EXPECT_EQ(engine.log.take(), lines);
        EXPECT_EQ(engine.location.requests, status == Status::notDetermined ? 1 : 0);
        EXPECT_FALSE(engine.scanner->locationAccessDenied()) << "only the callback tells";
        EXPECT_EQ(cyclesWithin(engine, 30), 0) << "scanning waits for the callback";
    }
}

TEST(WiFiScanner, StartsFiveSecondsAfterAccessIsGrantedAndKeepsTheInterval)
{
    Engine engine(Status::notDetermined);
    engine.defaults.setDouble(15, SettingKeys::scanInterval);
    engine.location.change(Status::authorizedWhenInUse);
    EXPECT_EQ(engine.log.take(), QStringList(u"Location access granted. Starting network scan..."_s));
    EXPECT_EQ(cyclesWithin(engine, 4.9), 0);
    EXPECT_EQ(cyclesWithin(engine, 0.2), 1);
    EXPECT_EQ(cyclesWithin(engine, 14.7), 0);
    EXPECT_EQ(cyclesWithin(engine, 0.3), 1);

    engine.defaults.setDouble(5, SettingKeys::scanInterval);
    EXPECT_EQ(cyclesWithin(engine, 14.5), 0) << "a new interval waits for the timer's restart";
    EXPECT_EQ(cyclesWithin(engine, 1), 1);
    engine.scanner->startTimer();
    EXPECT_EQ(cyclesWithin(engine, 11), 2);
}

TEST_F(WiFiScannerTest, ReplacesItsTimerAtEveryGrant)
{
    location.change(Status::authorizedWhenInUse);
    cyclesWithin(*this, 8);
    location.change(Status::authorizedAlways);
    cyclesWithin(*this, 6);
    EXPECT_EQ(main.runningTimers(), 1U);
    EXPECT_EQ(cyclesWithin(*this, 30), 3);
    for (const double useless : {0.0, -3.0, std::numeric_limits<double>::infinity()}) {
        defaults.setDouble(useless, SettingKeys::scanInterval);
        EXPECT_EQ(scanner->scanInterval(), 10.0);
    }
}

TEST_F(WiFiScannerTest, WithdrawnAccessClearsTheSelectionAndNothingElse)
{
    location.change(Status::authorizedWhenInUse);
    cycle({network(u"aa"_s, u"A"_s)});
    selection.select(scanner->networks().first());
    main.drain();
    log.take();
    location.change(Status::denied);
    EXPECT_TRUE(scanner->locationAccessDenied());
    EXPECT_EQ(log.take(), QStringList(u"Location access denied or restricted."_s));
    EXPECT_TRUE(selection.selectedBSSID()) << "the clear is posted";
    main.drain();
    EXPECT_FALSE(selection.selectedBSSID());
    EXPECT_EQ(listedBSSIDs(), QStringList(u"aa"_s));
    EXPECT_GE(cyclesWithin(*this, 30), 2) << "the timer keeps running";
    location.change(Status::authorizedAlways);
    EXPECT_FALSE(scanner->locationAccessDenied());
}

TEST_F(WiFiScannerTest, TakesTheStepsOfACycleInOrder)
{
    log.take();
    wifi.air.ssid = u"Quay"_s;
    wifi.air.scan = QList<CWNetwork>{network(u"aa"_s, u"A"_s), network(u"bb"_s, u"Unknown"_s)};
    scanner->scanNetworks();
    EXPECT_EQ(scanner->status(), ScannerStatus::idle) << "the status is posted";
    scanner->scanNetworks();
    main.drain();
    EXPECT_EQ(scanner->status(), ScannerStatus::scanning);
    EXPECT_EQ(log.take(), QStringList(u"Starting network scan..."_s)) << "the second trigger does nothing";

    scanTasks.runOne();
    EXPECT_FALSE(scanTasks.runOne());
    EXPECT_EQ(log.take(), QStringList({u"Current network: Quay"_s, u"Found 2 networks"_s}));
    EXPECT_EQ(scanner->status(), ScannerStatus::scanning);
    main.runOne();
    EXPECT_EQ(scanner->status(), ScannerStatus::idle) << "before the list is published";
    EXPECT_EQ(log.take(), QStringList(u"Network scan completed"_s));
    EXPECT_TRUE(scanner->networks().isEmpty());
    EXPECT_EQ(scanner->allNetworks().size(), 1);
    main.drain();
    EXPECT_EQ(listedBSSIDs(), QStringList(u"aa"_s));
}

TEST_F(WiFiScannerTest, KeepsTheDataThroughAFailedScan)
{
    cycle({network(u"aa"_s, u"A"_s, -40)});
    log.take();
    wifi.air.scan = Error{u"The Wi-Fi radio is off"_s};
    runCycle();
    EXPECT_EQ(scanner->status(), ScannerStatus::error);
    EXPECT_EQ(scanner->error(), u"Scan failed: The Wi-Fi radio is off"_s);
    EXPECT_EQ(log.take(), QStringList({u"Starting network scan..."_s, u"Current network: None"_s,
                                       u"Scan failed: The Wi-Fi radio is off"_s}));
    EXPECT_EQ(scanner->networks().first().signalHistory.size(), 1) << "no sample for a failed cycle";
    cycle({});
    EXPECT_EQ(scanner->status(), ScannerStatus::idle);
    EXPECT_EQ(scanner->error(), u"Scan failed: The Wi-Fi radio is off"_s) << "the status tells";
    EXPECT_EQ(scanner->networks().first().signalHistory.size(), 2);
}

TEST_F(WiFiScannerTest, StaysScanningWithoutAnInterfaceAndTriesAgain)
{
    QSignalSpy ended(&*scanner, &WiFiScanner::scanCycleEnded);
    wifi.setPresent(false);
    for (int i = 0; i < 2; ++i) {
        log.take();
        cycle({});
        EXPECT_EQ(log.take(), QStringList({u"Starting network scan..."_s, u"No WiFi interface found"_s}));
        EXPECT_EQ(scanner->status(), ScannerStatus::scanning);
        EXPECT_EQ(ended.count(), i + 1);
    }
    EXPECT_FALSE(scanner->findNetwork(u"A"_s));
    wifi.setPresent(true);
    cycle({network(u"aa"_s, u"A"_s)});
    EXPECT_EQ(scanner->status(), ScannerStatus::idle);
}

TEST_F(WiFiScannerTest, FindsANetworkByItsBytes)
{
    wifi.air.scan = QList<CWNetwork>{network(u"aa"_s, u"A"_s), network(u"bb"_s, u"Caf\u00e9"_s)};
    log.take();
    EXPECT_EQ(scanner->findNetwork(u"Caf\u00e9"_s)->bssid, u"bb"_s);
    EXPECT_EQ(wifi.air.askedFor, QList<QByteArray>{"Caf\xc3\xa9"});
    EXPECT_FALSE(scanner->findNetwork(QByteArray("Caf\xe9")));
    EXPECT_EQ(log.take(), QStringList());
    wifi.air.scan = Error{u"Scan timed out"_s};
    EXPECT_FALSE(scanner->findNetwork(u"A"_s));
    EXPECT_EQ(log.take(), QStringList(u"Error finding network: Scan timed out"_s));
    EXPECT_EQ(scanner->status(), ScannerStatus::idle);
}

TEST(WiFiScanner, ForgetsACycleThatAClearOvertakes)
{
    for (const bool duringScan : {true, false}) {
        Engine engine;
        engine.cycle({network(u"aa"_s, u"A"_s)});
        engine.wifi.air.scan = QList<CWNetwork>{network(u"bb"_s, u"B"_s)};
        if (duringScan) {
            engine.wifi.air.duringScan = [&] { engine.scanner->clearNetworks(); };
        }
        engine.scanner->scanNetworks();
        engine.scanTasks.runOne();
        if (!duringScan) {
            engine.scanner->clearNetworks();
        }
        engine.main.drain();
        expectMapsInStep(*engine.scanner);
        // A scan that answers after the clear is new knowledge; one that was merged before it is not.
        EXPECT_EQ(engine.listedBSSIDs(), duringScan ? QStringList(u"bb"_s) : QStringList());
        EXPECT_EQ(engine.scanner->status(), ScannerStatus::idle);
        engine.wifi.air.duringScan = nullptr;
        engine.cycle({network(u"aa"_s, u"A"_s)});
        expectMapsInStep(*engine.scanner);
        EXPECT_EQ(engine.scanner->allNetworks().find(u"aa"_s).value().signalHistory.size(), 1);
    }
}

TEST_F(WiFiScannerTest, KeepsTheMapsInStepWhenACycleMergesBeforeTheLastIsApplied)
{
    cycle({network(u"aa"_s, u"A"_s)});
    for (const auto& bssid : {u"bb"_s, u"cc"_s}) {
        wifi.air.scan = QList<CWNetwork>{network(bssid, u"B"_s)};
        scanner->scanNetworks();
        scanTasks.runOne();
    }
    main.drain();
    expectMapsInStep(*scanner);
    cycle({network(u"bb"_s, u"B"_s)});
    expectMapsInStep(*scanner);
    for (const auto& [bssid, record] : scanner->allNetworks()) {
        EXPECT_EQ(record.signalHistory.size(), scanner->networkHistory().find(bssid).value().size());
    }
}

TEST_F(WiFiScannerTest, EndsWithWorkOnItsWay)
{
    location.change(Status::authorizedWhenInUse);
    scanner->scanNetworks();
    scanTasks.runOne();
    scanner->clearNetworks();
    scanner.reset();
    main.advance(Seconds(60));
    EXPECT_EQ(main.runningTimers(), 0U);
}
