#pragma once

#include "model/ScanMerge.h"

#include <QList>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

namespace aerolith {

/// `count` access points as a scan might hear them: mixed security, channels and modes, in no order of
/// address, each one's texts beside the next one's in memory, as decoding leaves them.
inline QList<CWNetwork> syntheticResults(int count)
{
    std::mt19937 random(42);
    std::vector<int> order(static_cast<std::size_t>(count));
    std::iota(order.begin(), order.end(), 0);
    std::shuffle(order.begin(), order.end(), random);
    QList<CWNetwork> results;
    results.reserve(count);
    for (const int i : order) {
        CWNetwork result;
        result.bssid = QStringLiteral("0a:10:%1:%2:%3:%4")
                           .arg(i >> 16 & 255, 2, 16, QChar(u'0'))
                           .arg(i >> 8 & 255, 2, 16, QChar(u'0'))
                           .arg(i & 255, 2, 16, QChar(u'0'))
                           .arg(static_cast<int>(random() & 255), 2, 16, QChar(u'0'));
        result.ssid = QStringLiteral("Network %1").arg(i);
        result.ssidData = result.ssid->toUtf8();
        result.rssiValue = -static_cast<qint64>(35 + random() % 60);
        result.wlanChannel = CWChannel{.channelNumber = static_cast<qint64>(1 + random() % 13),
                                       .channelWidth = static_cast<int>(1 + random() % 4)};
        for (const int code : {4, 5}) {
            result.securityCodes.insert(code);
        }
        for (const int mode : {2, 3, 4}) {
            result.phyModeCodes.insert(mode);
        }
        result.countryCode = QStringLiteral("US");
        result.beaconInterval = 100;
        results.append(result);
    }
    return results;
}

/// What is known after `cycles` scans of these results.
inline AccessPoints knownAfter(const QList<CWNetwork>& results, int cycles, IdentifierSource& identifiers)
{
    AccessPoints known;
    for (int cycle = 0; cycle < cycles; ++cycle) {
        known = mergeScan(
            known,
            {.results = results, .scanTime = TimePoint(std::chrono::seconds(cycle)), .currentBSSID = {}},
            [] { return 50; }, identifiers);
    }
    return known;
}

/// The records of `count` access points, as they are after one scan.
inline WiFiNetworkList syntheticList(int count)
{
    IdentifierSource identifiers;
    WiFiNetworkList list;
    for (const auto& [bssid, record] : knownAfter(syntheticResults(count), 1, identifiers).allNetworks) {
        list.append(record);
    }
    return list;
}

} // namespace aerolith
