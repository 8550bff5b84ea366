#include "platform/qt/Locale.h"

#include <QTimeZone>

namespace aerolith {

namespace {

/// "de_DE.UTF-8@euro" names the locale "de_DE".
QByteArray localeOf(const char* category)
{
    for (const char* variable : {"LC_ALL", category, "LANG"}) {
        QByteArray value = qgetenv(variable);
        if (value.isEmpty()) {
            continue;
        }
        const qsizetype end = value.indexOf('.') >= 0 ? value.indexOf('.') : value.indexOf('@');
        value.truncate(end >= 0 ? end : value.size());
        return value == "C" || value == "POSIX" ? "en_US" : value;
    }
    return "en_US";
}

} // namespace

UserLocale environmentLocale()
{
    return {.collation = localeOf("LC_COLLATE"),
            .time = localeOf("LC_TIME"),
            .timeZone = QTimeZone::systemTimeZoneId()};
}

} // namespace aerolith
