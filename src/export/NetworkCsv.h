#pragma once

#include "model/DateTexts.h"
#include "model/WiFiNetwork.h"

#include <QString>

namespace aerolith {

/// The list as CSV: a header row, then a row for each record in the list's order.
[[nodiscard]] QString networkListCSV(const WiFiNetworkList& networks);

/// One record's details as CSV: its properties as label and value, then its signal history. Reads nothing but
/// the record; `texts` writes its times.
[[nodiscard]] QString networkDetailsCSV(const WiFiNetwork& network, const DateTexts& texts);

} // namespace aerolith
