#pragma once

#include "model/BssidOrder.h"

#include <QList>
#include <QString>

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

    /// Only for an index from 0 to size() - 1.
    [[nodiscard]] const Entry& at(qsizetype index) const { return m_entries.at(index); }

    /// The key of at(index).
    [[nodiscard]] BssidKey keyAt(qsizetype index) const
    {
        return {m_numbers.at(index), m_entries.at(index).bssid};
    }

    /// end() when there is none.
    [[nodiscard]] const_iterator find(const QString& bssid) const
    {
        const BssidKey key(bssid);
        qsizetype begin = 0;
        qsizetype end = size();
        while (begin < end) {
            const qsizetype middle = begin + (end - begin) / 2;
            if (keyAt(middle) < key) {
                begin = middle + 1;
            } else {
                end = middle;
            }
        }
        return begin < size() && keyAt(begin) == key ? m_entries.cbegin() + begin : this->end();
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

    void reserve(qsizetype count)
    {
        m_entries.reserve(count);
        m_numbers.reserve(count);
    }

    /// The key must be greater than every one that the map holds; `bssid` is its text.
    void append(quint64 number, const QString& bssid, Value value)
    {
        m_numbers.append(number);
        m_entries.append(Entry{bssid, std::move(value)});
    }

private:
    QList<Entry> m_entries;
    /// The number of each entry's BSSID: a search touches these alone.
    QList<quint64> m_numbers;
};

} // namespace aerolith
