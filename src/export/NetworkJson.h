#pragma once

#include "model/WiFiNetwork.h"

#include <QByteArray>

namespace aerolith {

/// The list as one JSON document: {"networks": [...]}, each record an object of its fields in the list's
/// order. Numbers are numbers, times ISO 8601 in UTC to the millisecond, an absent country is null, and
/// `ssidBytes` is the name as sent in hexadecimal beside the text.
[[nodiscard]] QByteArray networkListJson(const WiFiNetworkList& networks);

/// One record as one line of JSON, with its line feed: the object of the list, `cycle`, the number of the
/// scan cycle, and `heard`, whether the access point was heard in that cycle.
[[nodiscard]] QByteArray networkLineJson(const WiFiNetwork& network, int cycle, bool heard);

/// One record as one JSON document: the object of the list and `snr` and `signalHistory`, oldest first.
[[nodiscard]] QByteArray networkDetailsJson(const WiFiNetwork& network);

} // namespace aerolith
