#include "model/ScanMerge.h"

#include "model/NetworkRecord.h"

#include <algorithm>

namespace aerolith {

namespace {

/// The accepted results by BSSID; results of one BSSID keep the order in which they were heard.
QList<const CWNetwork*> acceptedByBssid(const QList<CWNetwork>& results)
{
    QList<const CWNetwork*> accepted;
    accepted.reserve(results.size());
    for (const CWNetwork& result : results) {
        if (isAccepted(result)) {
            accepted.append(&result);
        }
    }
    std::stable_sort(accepted.begin(), accepted.end(),
                     [](const CWNetwork* a, const CWNetwork* b) { return *a->bssid < *b->bssid; });
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

/// The history with one more sample, without the oldest that no longer fit.
SignalHistoryList appended(const SignalHistoryList& history, const SignalHistory& sample, qint64 limit)
{
    const qsizetype kept = std::clamp<qint64>(limit, 0, history.size() + 1);
    if (kept == 0) {
        return {};
    }
    SignalHistoryList longer(kept);
    std::copy(history.cend() - (kept - 1), history.cend(), longer.begin());
    longer.last() = sample;
    return longer;
}

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
        const QList<const CWNetwork*> heard = acceptedByBssid(m_cycle.results);
        reserve(m_known.allNetworks.size() + heard.size());
        auto missed = m_known.allNetworks.begin();
        for (auto at = heard.cbegin(); at != heard.cend();) {
            const QString& bssid = *(*at)->bssid;
            for (; missed != m_known.allNetworks.end() && missed->bssid < bssid; ++missed) {
                addMissed(missed->value);
            }
            if (missed != m_known.allNetworks.end() && missed->bssid == bssid) {
                ++missed;
            }
            const auto next =
                std::find_if(at, heard.cend(), [&](const CWNetwork* r) { return *r->bssid != bssid; });
            addHeard(at, next);
            at = next;
        }
        for (; missed != m_known.allNetworks.end(); ++missed) {
            addMissed(missed->value);
        }
        return std::move(m_merged);
    }

private:
    using Sighting = QList<const CWNetwork*>::const_iterator;

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
    void addHeard(Sighting first, Sighting end)
    {
        const QString& bssid = *(*first)->bssid;
        SignalHistoryList history = m_histories.value(bssid);
        for (auto at = first; at != end; ++at) {
            history = appended(history, sample((*at)->rssiValue, recordNoise), m_historyLimit());
        }
        m_merged.allNetworks.append(
            bssid, makeNetwork(**(end - 1), m_cycle.scanTime, m_cycle.currentBSSID, history, m_identifiers));
        m_merged.networkHistory.append(bssid, history);
        m_merged.lastSeenTimestamp.append(bssid, m_cycle.scanTime);
    }

    void addMissed(WiFiNetwork record)
    {
        record.signalHistory = appended(m_histories.value(record.bssid),
                                        sample(SignalHistory::missedRssi, record.noise), m_historyLimit());
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
