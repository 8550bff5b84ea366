#pragma once

#include <QByteArray>
#include <QUrl>

#include <optional>

namespace aerolith {

/// The only kind of address that anything is fetched from: absolute, https, with a host and with no name or
/// password in it.
[[nodiscard]] inline bool isHttpsAddress(const QUrl& url)
{
    return url.isValid() && url.scheme() == QStringLiteral("https") && !url.host().isEmpty() &&
           url.userInfo().isEmpty();
}

/// Where a server's Location header leads from the address that it answered for; absent where that is nothing
/// to fetch from.
[[nodiscard]] inline std::optional<QUrl> redirectTarget(const QUrl& from, const QByteArray& location)
{
    const QUrl target = from.resolved(QUrl::fromEncoded(location, QUrl::StrictMode));
    return !location.isEmpty() && isHttpsAddress(target) ? std::optional(target) : std::nullopt;
}

} // namespace aerolith
