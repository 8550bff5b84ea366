#pragma once

#include "platform/Log.h"
#include "platform/Result.h"
#include "update/Signature.h"

#include <QUrl>

#include <optional>

namespace aerolith {

/// Where updates are announced, and who must have signed them.
struct UpdateSource
{
    /// An https address with a host.
    QUrl feed;
    PublicKey key;
};

/// `key` in base64. The error says which of the two cannot be used.
[[nodiscard]] Result<UpdateSource> parseUpdateSource(const QString& feed, const QString& key);

/// What this program was built with: absent when that is nothing, or, which is logged, nothing usable.
[[nodiscard]] std::optional<UpdateSource> builtInUpdateSource(Log& log);

} // namespace aerolith
