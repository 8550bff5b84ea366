#include "model/ScanMerge.h"

#include "model/NetworkRecord.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace aerolith {

namespace {

struct Sighting
{
    BssidKey key;
    const CWNetwork* result;
};

/// The accepted results by BSSID; results of one BSSID keep the order in which they were heard.
std::vector<Sighting> acceptedByBssid(const QList<CWNetwork>& results)
{
    std::vector<Sighting> accepted;
    accepted.reserve(static_cast<std::size_t>(results.size()));
    for (const CWNetwork& result : results) {
        if (isAccepted(result)) {
            accepted.push_back({.key = BssidKey(*result.bssid), .result = &result});
        }
    }
    std::stable_sort(accepted.begin(), accepted.end(),
                     [](const Sighting& a, const Sighting& b) { return a.key < b.key; });
    return accepted;
}

/// Looks keys up that are asked for in ascending order, each in constant time on the whole.
template <typename Value>
class AscendingLookup
{
public:
    explicit AscendingLookup(const BssidMap<Value>& map) : m_map(map) {}

    /// A default value when the map does not hold the key.
    Value value(const BssidKey& key)
    {
        while (m_at < m_map.size() && m_map.keyAt(m_at) < key) {
            ++m_at;
        }
        return m_at < m_map.size() && m_map.keyAt(m_at) == key ? m_map.at(m_at).value : Value();
    }

private:
    const BssidMap<Value>& m_map;
    qsizetype m_at = 0;
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
        const BssidMap<WiFiNetwork>& known = m_known.allNetworks;
        qsizetype missed = 0;
        for (auto at = heard.cbegin(); at != heard.cend();) {
            const BssidKey key = at->key;
            for (; missed < known.size() && known.keyAt(missed) < key; ++missed) {
                addMissed(missed);
            }
            if (missed < known.size() && known.keyAt(missed) == key) {
                ++missed;
            }
            const auto next =
                std::find_if(at, heard.cend(), [&](const Sighting& other) { return !(other.key == key); });
            addHeard(at, next);
            at = next;
        }
        for (; missed < known.size(); ++missed) {
            addMissed(missed);
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
        SignalHistoryList history = m_histories.value(first->key);
        for (auto at = first; at != end; ++at) {
            history = history.appended(sample(at->result->rssiValue, recordNoise), m_historyLimit());
        }
        const CWNetwork& result = *(end - 1)->result;
        add(first->key, makeNetwork(result, m_cycle.scanTime, m_cycle.currentBSSID, history, m_identifiers),
            m_cycle.scanTime);
    }

    void addMissed(qsizetype index)
    {
        const BssidKey key = m_known.allNetworks.keyAt(index);
        WiFiNetwork record = m_known.allNetworks.at(index).value;
        record.signalHistory = m_histories.value(key).appended(
            sample(SignalHistory::missedRssi, record.noise), m_historyLimit());
        add(key, std::move(record), m_lastSeen.value(key));
    }

    void add(const BssidKey& key, WiFiNetwork record, TimePoint lastSeen)
    {
        const QString bssid = record.bssid;
        m_merged.networkHistory.append(key.number, bssid, record.signalHistory);
        m_merged.lastSeenTimestamp.append(key.number, bssid, lastSeen);
        m_merged.allNetworks.append(key.number, bssid, std::move(record));
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
