#pragma once

#include "platform/simulated/JsonPlace.h"

#include <QJsonArray>
#include <QList>

#include <array>
#include <limits>
#include <optional>
#include <utility>

namespace aerolith {

// read() takes over the value at a place, or complains there and leaves the target in some state. JsonMembers
// finds it by its arguments, so a type of one's own joins in by a read() in this namespace.

/// An integer with a range whose ends are exact as a double.
struct IntegerIn
{
    qint64& target;
    qint64 least;
    qint64 most;
};

/// The ranges of 32 bits.
[[nodiscard]] IntegerIn signedInteger(qint64& target);
[[nodiscard]] IntegerIn unsignedInteger(qint64& target);

void read(const JsonPlace& place, IntegerIn integer);

/// A signed integer.
void read(const JsonPlace& place, qint64& target);

void read(const JsonPlace& place, bool& target);

/// Refuses half a surrogate pair, which an escape can stand for but no UTF-8 text can hold.
void read(const JsonPlace& place, QString& target);

/// A value or null.
template <typename Target>
void read(const JsonPlace& place, std::optional<Target>& target)
{
    target.reset();
    if (!place.value().isNull()) {
        read(place.orNull(), target.emplace());
    }
}

template <typename Target>
void read(const JsonPlace& place, QList<Target>& target)
{
    if (!place.value().isArray()) {
        place.expected(QStringLiteral("a list"));
    }
    const qsizetype count = place.value().toArray().size();
    target.resize(count);
    for (qsizetype index = 0; index < count && !place.failed(); ++index) {
        read(place.element(index), target[index]);
    }
}

/// One of some names.
template <typename Choice, std::size_t count>
void readChoice(const JsonPlace& place, Choice& target,
                const std::array<std::pair<QLatin1StringView, Choice>, count>& choices)
{
    QStringList names;
    for (const auto& [name, choice] : choices) {
        if (place.value().isString() && place.value().toString() == name) {
            target = choice;
            return;
        }
        names.append(u'"' + name + u'"');
    }
    place.expected(QStringLiteral("one of ") + names.join(u", "));
}

} // namespace aerolith
