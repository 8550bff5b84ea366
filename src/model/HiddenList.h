#pragma once

#include "platform/UserDefaults.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace aerolith {

/// The BSSIDs that the user has hidden, in the order of hiding, duplicates possible. They live in the user
/// defaults alone: every call reads them there. Any thread.
[[nodiscard]] QStringList loadHiddenBSSIDs(const UserDefaults& defaults);

void saveHiddenBSSIDs(UserDefaults& defaults, const QStringList& bssids);

[[nodiscard]] bool isHidden(const UserDefaults& defaults, const QString& bssid);

/// The stored form is the UTF-8 JSON of an array of strings, without blanks. Bytes that are anything else
/// than such an array, blanks allowed, decode as an empty list.
[[nodiscard]] QStringList decodeHiddenBSSIDs(const QByteArray& stored);

[[nodiscard]] QByteArray encodeHiddenBSSIDs(const QStringList& bssids);

} // namespace aerolith
