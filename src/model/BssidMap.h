#pragma once

#include <QList>
#include <QString>

#include <algorithm>
#include <utility>

namespace aerolith {

/// Values by BSSID, in BSSID order, so that whatever ties in a later ordering ties the same way in every
/// cycle. A sorted list, implicitly shared: copying costs a pointer, a merge walks it from front to back and
/// writes its successor the same way.
template <typename Value>
class BssidMap
{
public:
    struct Entry
    {
        QString bssid;
        Value value;
    };

    using const_iterator = typename QList<Entry>::const_iterator;

    [[nodiscard]] const_iterator begin() const { return m_entries.cbegin(); }

    [[nodiscard]] const_iterator end() const { return m_entries.cend(); }

    [[nodiscard]] qsizetype size() const { return m_entries.size(); }

    [[nodiscard]] bool isEmpty() const { return m_entries.isEmpty(); }

    /// end() when there is none.
    [[nodiscard]] const_iterator find(const QString& bssid) const
    {
        const auto found = std::lower_bound(
            begin(), end(), bssid, [](const Entry& entry, const QString& key) { return entry.bssid < key; });
        return found != end() && found->bssid == bssid ? found : end();
    }

    [[nodiscard]] bool contains(const QString& bssid) const { return find(bssid) != end(); }

    [[nodiscard]] QList<QString> keys() const
    {
        QList<QString> keys;
        keys.reserve(size());
        for (const Entry& entry : *this) {
            keys.append(entry.bssid);
        }
        return keys;
    }

    void reserve(qsizetype count) { m_entries.reserve(count); }

    /// The BSSID must be greater than every one that the map holds.
    void append(const QString& bssid, Value value) { m_entries.append(Entry{bssid, std::move(value)}); }

private:
    QList<Entry> m_entries;
};

} // namespace aerolith
