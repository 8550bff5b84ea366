#include "platform/qt/Locale.h"

#include <QTimeZone>

#include <optional>

namespace aerolith {

namespace {

/// "de_DE.UTF-8@euro" names the locale "de_DE".
QByteArray withoutEncoding(const QByteArray& value)
{
    const qsizetype end = value.indexOf('.') >= 0 ? value.indexOf('.') : value.indexOf('@');
    return value.left(end >= 0 ? end : value.size());
}

/// None for "C", or where nothing is set.
std::optional<QByteArray> localeOf(const char* category)
{
    for (const char* variable : {"LC_ALL", category, "LANG"}) {
        const QByteArray value = qgetenv(variable);
        if (value.isEmpty()) {
            continue;
        }
        const QByteArray locale = withoutEncoding(value);
        return locale == "C" || locale == "POSIX" ? std::nullopt : std::optional(locale);
    }
    return {};
}

} // namespace

UserLocale environmentLocale()
{
    return {.collation = localeOf("LC_COLLATE").value_or("en_US"),
            .time = localeOf("LC_TIME").value_or("en_US"),
            .timeZone = QTimeZone::systemTimeZoneId()};
}

QStringList messageLanguages()
{
    const std::optional<QByteArray> locale = localeOf("LC_MESSAGES");
    if (!locale) {
        return {};
    }
    QStringList languages;
    for (const QByteArray& language : qgetenv("LANGUAGE").split(':')) {
        if (!language.isEmpty()) {
            languages.append(QString::fromLatin1(withoutEncoding(language)));
        }
    }
    return languages.isEmpty() ? QStringList(QString::fromLatin1(*locale)) : languages;
}

} // namespace aerolith
