#pragma once

#include <QString>

/// The persisted settings of update checking: key, stored form, default.
namespace aerolith::SettingKeys {

/// Integer: not 0 for a check a day without being asked. 0 by default.
inline const QString automaticUpdateChecks = QStringLiteral("automaticUpdateChecks");

/// Integer, seconds since 1970: when the last check began. Absent before the first.
inline const QString lastUpdateCheck = QStringLiteral("lastUpdateCheck");

} // namespace aerolith::SettingKeys
