#pragma once

#include "model/SignalHistoryList.h"

#include <initializer_list>

namespace aerolith {

/// Samples of these strengths, dBm.
[[nodiscard]] inline SignalHistoryList history(std::initializer_list<qint64> strengths, qint64 noise = -90)
{
    SignalHistoryList list;
    for (const qint64 rssi : strengths) {
        list = list.appended({.id = QUuid::createUuid(), .timestamp = {}, .rssi = rssi, .noise = noise},
                             list.size() + 1);
    }
    return list;
}

} // namespace aerolith
