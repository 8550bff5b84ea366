#pragma once

#include "platform/UserLocale.h"

#include <QStringList>

namespace aerolith {

/// The user's locale from the environment: LC_ALL, else LC_COLLATE or LC_TIME, else LANG; "C" and nothing
/// count as English (United States).
[[nodiscard]] UserLocale environmentLocale();

/// The languages that the user reads, best first, from the environment: LANGUAGE, which counts only where the
/// locale for messages is another than "C", else that locale. As "de" or "de_AT"; none for "C".
[[nodiscard]] QStringList messageLanguages();

} // namespace aerolith
