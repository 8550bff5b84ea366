#pragma once

#include "model/IdentifierSource.h"
#include "model/WiFiNetwork.h"
#include "platform/CWNetwork.h"

#include <optional>

namespace aerolith {

/// The noise level of every record, dBm: the platform's own measurement is not consulted.
inline constexpr qint64 recordNoise = -90;

/// Whether a scan result may become a record: it has an address, and a name that is neither empty nor
/// "Unknown".
[[nodiscard]] bool isAccepted(const CWNetwork& result);

/// Builds the record of one accepted result. `history` is the access point's history with this cycle's
/// sample.
[[nodiscard]] WiFiNetwork makeNetwork(const CWNetwork& result, TimePoint scanTime,
                                      const std::optional<QString>& currentBSSID,
                                      const SignalHistoryList& history, IdentifierSource& identifiers);

/// Names of the security methods that the result supports, joined by ", ", or "None".
[[nodiscard]] QString securityDescription(const CWNetwork& result);

/// Names of the PHY modes that the result supports, in ascending order of their codes.
[[nodiscard]] QStringList supportedPhyModes(const CWNetwork& result);

/// "2.4 GHz", "5 GHz" or "Unknown"; absent stands for a result without a channel.
[[nodiscard]] QString bandName(std::optional<qint64> channel);

/// MHz for the platform's width code, 0 for a code that names no width.
[[nodiscard]] qint64 channelWidthMHz(int widthCode);

} // namespace aerolith
