#include "model/BssidIndex.h"

#include <algorithm>

namespace aerolith {

qsizetype BssidIndex::rankOf(const BssidKey& wanted) const
{
    const auto found =
        std::lower_bound(m_ranked.cbegin(), m_ranked.cend(), wanted,
                         [this](const Ranked& ranked, const BssidKey& other) { return key(ranked) < other; });
    return found != m_ranked.cend() && key(*found) == wanted ? found - m_ranked.cbegin() : nowhere;
}

qsizetype BssidIndex::placeOf(const BssidKey& wanted, qsizetype guess) const
{
    if (guess >= 0 && guess < size() && BssidKey(m_numbers.at(guess), bssidAt(guess)) == wanted) {
        return guess;
    }
    const qsizetype rank = rankOf(wanted);
    return rank == nowhere ? nowhere : placeOfRank(rank);
}

void BssidIndex::add(const QStringList& bssids)
{
    if (bssids.isEmpty()) {
        return;
    }
    const qsizetype before = size();
    for (const QString& bssid : bssids) {
        m_ranked.append({.number = bssidNumber(bssid), .place = size()});
        m_numbers.append(m_ranked.last().number);
        m_bssids.append(bssid);
    }
    const auto inOrder = [this](const Ranked& a, const Ranked& b) { return key(a) < key(b); };
    std::sort(m_ranked.begin() + before, m_ranked.end(), inOrder);
    std::inplace_merge(m_ranked.begin(), m_ranked.begin() + before, m_ranked.end(), inOrder);
}

} // namespace aerolith
