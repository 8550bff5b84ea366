#pragma once

#include <QUrl>

namespace aerolith {

/// The only kind of address that anything is fetched from: absolute, https, with a host and with no name or
/// password in it.
[[nodiscard]] inline bool isHttpsAddress(const QUrl& url)
{
    return url.isValid() && url.scheme() == QStringLiteral("https") && !url.host().isEmpty() &&
           url.userInfo().isEmpty();
}

} // namespace aerolith
