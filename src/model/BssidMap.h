#pragma once

#include "model/BssidIndex.h"

#include <QList>
#include <QString>

#include <cstddef>
#include <iterator>
#include <utility>

namespace aerolith {

/// Values by BSSID. It is walked in BSSID order, so that whatever ties in a later ordering ties the same way
/// in every cycle. Implicitly shared: copying costs a few pointers, and maps made by one merge share one
/// index.
template <typename Value>
class BssidMap
{
public:
    struct Entry
    {
        const QString& bssid;
        const Value& value;
    };

    class const_iterator
    {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = Entry;
        using difference_type = std::ptrdiff_t;
        using pointer = const Entry*;
        using reference = Entry;

        const_iterator(const BssidMap& map, qsizetype rank) : m_map(&map), m_rank(rank) {}

        Entry operator*() const
        {
            const qsizetype place = m_map->m_index.placeOfRank(m_rank);
            return {m_map->m_index.bssidAt(place), m_map->m_values.at(place)};
        }

        [[nodiscard]] const Value& value() const { return (**this).value; }

        const_iterator& operator++()
        {
            ++m_rank;
            return *this;
        }

        friend bool operator==(const const_iterator&, const const_iterator&) = default;

    private:
        const BssidMap* m_map;
        qsizetype m_rank;
    };

    BssidMap() = default;

    /// `values` by the places of the index, one for each.
    BssidMap(BssidIndex index, QList<Value> values) : m_index(std::move(index)), m_values(std::move(values))
    {
        Q_ASSERT(m_index.size() == m_values.size());
    }

    [[nodiscard]] const_iterator begin() const { return {*this, 0}; }

    [[nodiscard]] const_iterator end() const { return {*this, size()}; }

    [[nodiscard]] qsizetype size() const { return m_values.size(); }

    [[nodiscard]] bool isEmpty() const { return m_values.isEmpty(); }

    /// end() when there is none.
    [[nodiscard]] const_iterator find(const QString& bssid) const
    {
        const qsizetype rank = m_index.rankOf(BssidKey(bssid));
        return rank == BssidIndex::nowhere ? end() : const_iterator(*this, rank);
    }

    [[nodiscard]] const BssidIndex& index() const { return m_index; }

    /// The values by the places of another map's index; a default value for what this map does not hold.
    [[nodiscard]] QList<Value> valuesFor(const BssidIndex& index) const
    {
        if (index.isSharedWith(m_index)) {
            return m_values;
        }
        QList<Value> values;
        values.reserve(index.size());
        for (qsizetype place = 0; place < index.size(); ++place) {
            const qsizetype own = m_index.placeOf(BssidKey(index.bssidAt(place)), place);
            values.append(own == BssidIndex::nowhere ? Value() : m_values.at(own));
        }
        return values;
    }

private:
    BssidIndex m_index;
    /// By place.
    QList<Value> m_values;
};

} // namespace aerolith
