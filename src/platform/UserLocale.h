#pragma once

#include <QByteArray>

namespace aerolith {

/// How the user wants texts ordered and times written, as ICU identifiers.
struct UserLocale
{
    /// Locale whose alphabet orders texts, such as "sv_SE".
    QByteArray collation = "en_US";
    /// Locale in which dates and times are written.
    QByteArray time = "en_US";
    /// Time zone, such as "Europe/Berlin".
    QByteArray timeZone = "UTC";
};

} // namespace aerolith
