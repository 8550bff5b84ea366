#pragma once

#include <QString>

/// The persisted settings: key, stored form, default.
namespace aerolith::SettingKeys {

/// Double, seconds between two scans; above 0, else the default counts.
inline const QString scanInterval = QStringLiteral("scanInterval");
inline constexpr double defaultScanInterval = 10.0;

/// Integer, samples kept for each access point; below 0 counts as 0.
inline const QString historyLimit = QStringLiteral("historyLimit");
inline constexpr qint64 defaultHistoryLimit = 20;

/// Data, see HiddenList.h; nothing is hidden by default.
inline const QString hiddenBSSIDs = QStringLiteral("hiddenBSSIDs");

} // namespace aerolith::SettingKeys
