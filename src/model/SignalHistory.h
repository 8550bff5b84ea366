#pragma once

#include "platform/Clock.h"

#include <QList>
#include <QUuid>

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

/// Samples of one access point, oldest first.
using SignalHistoryList = QList<SignalHistory>;

} // namespace aerolith

Q_DECLARE_TYPEINFO(aerolith::SignalHistory, Q_PRIMITIVE_TYPE);
