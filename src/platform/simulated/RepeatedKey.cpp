#include "platform/simulated/RepeatedKey.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <vector>

namespace aerolith {

namespace {

struct Nesting
{
    bool isObject = false;
    /// Whether the next string is a key.
    bool expectsKey = false;
    QSet<QString> keys;
};

/// The offset behind the string literal that begins at `begin`.
qsizetype endOfString(const QByteArray& json, qsizetype begin)
{
    qsizetype at = begin + 1;
    while (at < json.size() && json[at] != '"') {
        at += json[at] == '\\' ? 2 : 1;
    }
    return at + 1;
}

QString decoded(const QByteArray& stringLiteral)
{
    return QJsonDocument::fromJson('[' + stringLiteral + ']').array().at(0).toString();
}

} // namespace

std::optional<RepeatedKey> repeatedKey(const QByteArray& json)
{
    std::vector<Nesting> nestings(1);
    qsizetype at = 0;
    while (at < json.size()) {
        Nesting& here = nestings.back();
        const char byte = json[at];
        if (byte == '"') {
            const qsizetype end = endOfString(json, at);
            if (here.expectsKey) {
                const QString key = decoded(json.mid(at, end - at));
                if (here.keys.contains(key)) {
                    return RepeatedKey{key, at};
                }
                here.keys.insert(key);
                here.expectsKey = false;
            }
            at = end;
            continue;
        }
        if (byte == '{' || byte == '[') {
            nestings.push_back({byte == '{', byte == '{', {}});
        } else if ((byte == '}' || byte == ']') && nestings.size() > 1) {
            nestings.pop_back();
        } else if (byte == ',') {
            here.expectsKey = here.isObject;
        }
        ++at;
    }
    return {};
}

} // namespace aerolith
