#pragma once

#include "platform/Clock.h"

#include <QUuid>
#include <QtGlobal>

namespace aerolith {

/// One timed sample of an access point's signal.
struct SignalHistory
{
    /// The RSSI of a sample that marks a scan cycle in which the access point was not heard, dBm.
    static constexpr qint64 missedRssi = -100;

    /// Fresh for every sample.
    QUuid id;
    /// The scan time of the cycle that produced the sample.
    TimePoint timestamp;
    /// dBm.
    qint64 rssi = 0;
    /// dBm.
    qint64 noise = 0;
};

} // namespace aerolith
