#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace aerolith {

/// A key that stands a second time in one object.
struct RepeatedKey
{
    QString key;
    /// In bytes, of the first character of the key's second appearance.
    qsizetype offset = 0;
};

/// The first repeated key of a text that QJsonDocument accepts: it would silently keep the last value of
/// each.
[[nodiscard]] std::optional<RepeatedKey> repeatedKey(const QByteArray& json);

} // namespace aerolith
