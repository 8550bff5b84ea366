#pragma once

#include "model/BssidOrder.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace aerolith {

/// The BSSIDs that a map holds. Each has a place, in the order in which they were added, which it keeps:
/// scans tell of access points in nearly the same order every time, so that a merge walks its maps from front
/// to back. Ranks count in BSSID order. Implicitly shared; a copy may be read on any thread.
class BssidIndex
{
public:
    static constexpr qsizetype nowhere = -1;

    [[nodiscard]] qsizetype size() const { return m_bssids.size(); }

    [[nodiscard]] const QString& bssidAt(qsizetype place) const { return m_bssids.at(place); }

    [[nodiscard]] qsizetype placeOfRank(qsizetype rank) const { return m_ranked.at(rank).place; }

    /// `nowhere` when the BSSID is not held.
    [[nodiscard]] qsizetype rankOf(const BssidKey& key) const;

    /// `nowhere` when the BSSID is not held. Quick when the place is the one that `guess` names.
    [[nodiscard]] qsizetype placeOf(const BssidKey& key, qsizetype guess) const;

    /// At the places from size() on. None of them is held yet, and none stands there twice.
    void add(const QStringList& bssids);

    /// Both come from one index to which nothing has been added since, so that they have the same places.
    [[nodiscard]] bool isSharedWith(const BssidIndex& other) const
    {
        return m_bssids.isSharedWith(other.m_bssids);
    }

private:
    struct Ranked
    {
        quint64 number;
        qsizetype place;
    };

    [[nodiscard]] BssidKey key(const Ranked& ranked) const { return {ranked.number, bssidAt(ranked.place)}; }

    /// By place.
    QStringList m_bssids;
    QList<quint64> m_numbers;
    /// In BSSID order.
    QList<Ranked> m_ranked;
};

} // namespace aerolith
