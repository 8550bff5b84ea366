#pragma once

#include "platform/CLLocationManager.h"
#include "platform/CWWiFiClient.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Queues.h"
#include "platform/UserDefaults.h"
#include "platform/UserLocale.h"

namespace aerolith {

/// What the scan engine asks of its surroundings, plugged in once by the program that is built around it. All
/// of it outlives the engine.
struct Surroundings
{
    CWWiFiClient& wifiClient;
    CLLocationManager& locationManager;
    UserDefaults& userDefaults;
    MainQueue& mainQueue;
    MakeSerialQueue makeSerialQueue;
    Clock& clock;
    Log& log;
    UserLocale locale;

    /// The same but for these two.
    [[nodiscard]] Surroundings with(CWWiFiClient& otherClient, CLLocationManager& otherManager) const
    {
        return {.wifiClient = otherClient,
                .locationManager = otherManager,
                .userDefaults = userDefaults,
                .mainQueue = mainQueue,
                .makeSerialQueue = makeSerialQueue,
                .clock = clock,
                .log = log,
                .locale = locale};
    }
};

} // namespace aerolith
