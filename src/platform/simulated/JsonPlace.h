#pragma once

#include "platform/Result.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace aerolith {

/// Text from a file as it may stand in a one-line message: in double quotes, shortened when long, with
/// escapes for what does not print.
[[nodiscard]] QString quoted(const QString& text);

/// One value of a JSON document together with where it stands, for readers that say what they expected where.
/// The first complaint about a document is kept, later ones are dropped.
///
/// A place refers to the place that it was reached through and to the failure: neither may go away before it.
class JsonPlace
{
public:
    /// The whole document; complaints about any part of it go to `failure`.
    JsonPlace(QJsonValue document, Failure& failure);

    /// A member of the object, or an element of the list, that stands here.
    [[nodiscard]] JsonPlace member(const QString& key) const;
    [[nodiscard]] JsonPlace element(qsizetype index) const;

    /// The same place, where null is among what is expected.
    [[nodiscard]] JsonPlace orNull() const;

    [[nodiscard]] const QJsonValue& value() const { return m_value; }

    /// Complains, in the words "cycles[2].joined: expected an object or null, found 5".
    void expected(const QString& what) const;

    void complain(const QString& complaint) const;

    /// Whether there was a complaint, about this place or any other.
    [[nodiscard]] bool failed() const { return m_failure->has_value(); }

private:
    JsonPlace(const JsonPlace& parent, QJsonValue value, QString step);

    [[nodiscard]] QString path() const;

    const JsonPlace* m_parent = nullptr;
    QJsonValue m_value;
    QString m_step;
    bool m_orNull = false;
    Failure* m_failure;
};

/// Hands the members of one object to the read() function for the type of each target; a member that is
/// absent leaves its target as it is. The last call is end(), which complains about members that nobody asked
/// for.
class JsonMembers
{
public:
    /// Complains when there is no object at the place.
    explicit JsonMembers(const JsonPlace& place);

    [[nodiscard]] bool has(const QString& key) const { return m_object.contains(key); }

    template <typename Target>
    void optional(const QString& key, Target&& target)
    {
        m_keys.append(key);
        if (has(key)) {
            read(m_place.member(key), target);
        }
    }

    /// As optional(), but end() complains about its absence.
    template <typename Target>
    void required(const QString& key, Target&& target)
    {
        if (!has(key)) {
            m_missing.append(key);
        }
        optional(key, target);
    }

    void end() const;

private:
    const JsonPlace& m_place;
    QJsonObject m_object;
    QStringList m_keys;
    QStringList m_missing;
};

} // namespace aerolith
