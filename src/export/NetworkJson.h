#pragma once

#include "model/WiFiNetwork.h"

#include <QByteArray>

namespace aerolith {

/// The list as one JSON document: {"networks": [...]}, each record an object of its fields in the list's
/// order. Numbers are numbers, times ISO 8601 in UTC to the millisecond, an absent country is null, and
/// `ssidBytes` is the name as sent in hexadecimal beside the text.
[[nodiscard]] QByteArray networkListJson(const WiFiNetworkList& networks);

/// One record as one JSON document: the object of the list and `snr` and `signalHistory`, oldest first.
[[nodiscard]] QByteArray networkDetailsJson(const WiFiNetwork& network);

} // namespace aerolith
