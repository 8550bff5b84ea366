#pragma once

#include "model/WiFiScanner.h"
#include "support/FakeWiFi.h"
#include "support/ManualMainQueue.h"
#include "support/ManualSerialQueue.h"
#include "support/MemoryDefaults.h"
#include "support/RecordingLog.h"

#include <QStringList>

#include <optional>

namespace aerolith {

/// What the scan engine stands on, but for the radio: driven by the test.
class ManualSurroundings
{
public:
    [[nodiscard]] Surroundings around(CWWiFiClient& wifiClient, CLLocationManager& locationManager)
    {
        return {.wifiClient = wifiClient,
                .locationManager = locationManager,
                .userDefaults = defaults,
                .mainQueue = main,
                .makeSerialQueue = scanTasks.factory(),
                .clock = main,
                .log = log,
                .locale = {}};
    }

    ManualMainQueue main;
    ManualSerialTasks scanTasks;
    MemoryDefaults defaults;
    RecordingLog log;
};

/// The scan engine on surroundings that the test drives.
class Engine : public ManualSurroundings
{
public:
    explicit Engine(CLAuthorizationStatus initial = CLAuthorizationStatus::authorizedWhenInUse)
    {
        location.setInitial(initial);
        scanner.emplace(selection, around(wifi, location));
    }

    /// One whole cycle with these results, a second after the last one.
    void cycle(const QList<CWNetwork>& results)
    {
        main.advance(Seconds(1));
        wifi.air.scan = results;
        runCycle();
    }

    /// One whole cycle with what the air holds.
    void runCycle()
    {
        scanner->scanNetworks();
        main.drain();
        scanTasks.runOne();
        main.drain();
    }

    [[nodiscard]] QStringList listedBSSIDs() const
    {
        QStringList bssids;
        for (const WiFiNetwork& listed : scanner->networks()) {
            bssids.append(listed.bssid);
        }
        return bssids;
    }

    FakeWiFiClient wifi;
    FakeLocationManager location;
    SelectionStore selection{main};
    std::optional<WiFiScanner> scanner;
};

} // namespace aerolith
