#include "model/ScanMerge.h"

#include "model/NetworkRecord.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace aerolith {

namespace {

/// One accepted result, its key beside it: sorting ten thousand of them would otherwise chase twice the
/// pointers.
struct Sighting
{
    QStringView bssid;
    const CWNetwork* result;
};

/// The accepted results by BSSID; results of one BSSID keep the order in which they were heard.
std::vector<Sighting> acceptedByBssid(const QList<CWNetwork>& results)
{
    std::vector<Sighting> accepted;
    accepted.reserve(static_cast<std::size_t>(results.size()));
    for (const CWNetwork& result : results) {
        if (isAccepted(result)) {
            accepted.push_back({.bssid = *result.bssid, .result = &result});
        }
    }
    std::stable_sort(accepted.begin(), accepted.end(),
                     [](const Sighting& a, const Sighting& b) { return a.bssid < b.bssid; });
    return accepted;
}

/// Looks keys up that are asked for in ascending order, each in constant time on the whole.
template <typename Value>
class AscendingLookup
{
public:
    explicit AscendingLookup(const BssidMap<Value>& map) : m_at(map.begin()), m_end(map.end()) {}

    /// A default value when the map does not hold the key.
    Value value(const QString& bssid)
    {
        while (m_at != m_end && m_at->bssid < bssid) {
            ++m_at;
        }
        return m_at != m_end && m_at->bssid == bssid ? m_at->value : Value();
    }

private:
    typename BssidMap<Value>::const_iterator m_at;
    typename BssidMap<Value>::const_iterator m_end;
};

class Merge
{
public:
    Merge(const AccessPoints& known, const ScanCycle& cycle, const std::function<qint64()>& historyLimit,
          IdentifierSource& identifiers)
        : m_known(known)
        , m_cycle(cycle)
        , m_historyLimit(historyLimit)
        , m_identifiers(identifiers)
        , m_histories(known.networkHistory)
        , m_lastSeen(known.lastSeenTimestamp)
    {
    }

    AccessPoints run()
    {
        const std::vector<Sighting> heard = acceptedByBssid(m_cycle.results);
        reserve(std::max<qsizetype>(m_known.allNetworks.size(), std::ssize(heard)));
        auto missed = m_known.allNetworks.begin();
        for (auto at = heard.cbegin(); at != heard.cend();) {
            const QStringView bssid = at->bssid;
            for (; missed != m_known.allNetworks.end() && missed->bssid < bssid; ++missed) {
                addMissed(missed->value);
            }
            if (missed != m_known.allNetworks.end() && missed->bssid == bssid) {
                ++missed;
            }
            const auto next =
                std::find_if(at, heard.cend(), [&](const Sighting& other) { return other.bssid != bssid; });
            addHeard(at, next);
            at = next;
        }
        for (; missed != m_known.allNetworks.end(); ++missed) {
            addMissed(missed->value);
        }
        return std::move(m_merged);
    }

private:
    using SightingIterator = std::vector<Sighting>::const_iterator;

    void reserve(qsizetype count)
    {
        m_merged.allNetworks.reserve(count);
        m_merged.networkHistory.reserve(count);
        m_merged.lastSeenTimestamp.reserve(count);
    }

    SignalHistory sample(qint64 rssi, qint64 noise)
    {
        return {.id = m_identifiers.next(), .timestamp = m_cycle.scanTime, .rssi = rssi, .noise = noise};
    }

    /// Every sighting of one access point in this cycle leaves a sample; the last makes the record.
    void addHeard(SightingIterator first, SightingIterator end)
    {
        const QString& bssid = *first->result->bssid;
        SignalHistoryList history = m_histories.value(bssid);
        for (auto at = first; at != end; ++at) {
            history = history.appended(sample(at->result->rssiValue, recordNoise), m_historyLimit());
        }
        m_merged.allNetworks.append(bssid, makeNetwork(*(end - 1)->result, m_cycle.scanTime,
                                                       m_cycle.currentBSSID, history, m_identifiers));
        m_merged.networkHistory.append(bssid, history);
        m_merged.lastSeenTimestamp.append(bssid, m_cycle.scanTime);
    }

    void addMissed(WiFiNetwork record)
    {
        record.signalHistory =
            m_histories.value(record.bssid)
                .appended(sample(SignalHistory::missedRssi, record.noise), m_historyLimit());
        const QString bssid = record.bssid;
        m_merged.networkHistory.append(bssid, record.signalHistory);
        m_merged.lastSeenTimestamp.append(bssid, m_lastSeen.value(bssid));
        m_merged.allNetworks.append(bssid, std::move(record));
    }

    const AccessPoints& m_known;
    const ScanCycle& m_cycle;
    const std::function<qint64()>& m_historyLimit;
    IdentifierSource& m_identifiers;
    AscendingLookup<SignalHistoryList> m_histories;
    AscendingLookup<TimePoint> m_lastSeen;
    AccessPoints m_merged;
};

} // namespace

AccessPoints mergeScan(const AccessPoints& known, const ScanCycle& cycle,
                       const std::function<qint64()>& historyLimit, IdentifierSource& identifiers)
{
    return Merge(known, cycle, historyLimit, identifiers).run();
}

} // namespace aerolith
