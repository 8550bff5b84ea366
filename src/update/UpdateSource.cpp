#include "update/UpdateSource.h"

#include "update/HttpsAddress.h"

namespace aerolith {

using namespace Qt::StringLiterals;

Result<UpdateSource> parseUpdateSource(const QString& feed, const QString& key)
{
    const QUrl url(feed, QUrl::StrictMode);
    if (!isHttpsAddress(url)) {
        return Error{u"The address of the update feed is no https address: %1"_s.arg(feed)};
    }
    const auto publicKey = PublicKey::parse(key);
    if (!publicKey) {
        return Error{u"The public key for updates is not 32 bytes in base64"_s};
    }
    return UpdateSource{url, *publicKey};
}

std::optional<UpdateSource> builtInUpdateSource(Log& log)
{
    const QString feed = QStringLiteral(AEROLITH_UPDATE_FEED);
    const QString key = QStringLiteral(AEROLITH_UPDATE_KEY);
    if (feed.isEmpty() && key.isEmpty()) {
        return {};
    }
    const auto source = parseUpdateSource(feed, key);
    if (!source.ok()) {
        log.line(source.error().description);
        return {};
    }
    return source.value();
}

} // namespace aerolith
