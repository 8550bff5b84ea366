#include "model/ScanMerge.h"

#include "model/NetworkRecord.h"

#include <QHash>

#include <utility>
#include <vector>

namespace aerolith {

namespace {

class Merge
{
public:
    Merge(const AccessPoints& known, const ScanCycle& cycle, const std::function<qint64()>& historyLimit,
          IdentifierSource& identifiers)
        : m_cycle(cycle)
        , m_historyLimit(historyLimit)
        , m_identifiers(identifiers)
        , m_index(known.allNetworks.index())
        , m_knownNetworks(known.allNetworks.valuesFor(m_index))
        , m_knownHistories(known.networkHistory.valuesFor(m_index))
        , m_knownLastSeen(known.lastSeenTimestamp.valuesFor(m_index))
    {
    }

    AccessPoints run()
    {
        findPlaces();
        m_networks.reserve(m_index.size());
        m_histories.reserve(m_index.size());
        m_lastSeen.reserve(m_index.size());
        for (qsizetype place = 0; place < m_index.size(); ++place) {
            if (const Sighting* sighting = m_heard[static_cast<std::size_t>(place)]) {
                addHeard(place, *sighting);
            } else {
                addMissed(place);
            }
        }
        return {.allNetworks = {m_index, std::move(m_networks)},
                .networkHistory = {m_index, std::move(m_histories)},
                .lastSeenTimestamp = {m_index, std::move(m_lastSeen)}};
    }

private:
    /// One accepted result, and the next one of the same access point in this cycle.
    struct Sighting
    {
        const CWNetwork* result;
        Sighting* next = nullptr;
    };

    /// Files every accepted result under its access point's place. Those not known before come to the end of
    /// the index.
    void findPlaces()
    {
        // Never grows beyond this: sightings point to each other.
        m_sightings.reserve(static_cast<std::size_t>(m_cycle.results.size()));
        m_heard.resize(static_cast<std::size_t>(m_index.size()));
        QStringList fresh;
        QHash<QString, qsizetype> freshPlaces;
        qsizetype place = BssidIndex::nowhere;
        for (const CWNetwork& result : m_cycle.results) {
            if (!isAccepted(result)) {
                continue;
            }
            place = m_index.placeOf(BssidKey(*result.bssid), place + 1);
            if (place == BssidIndex::nowhere) {
                place = freshPlaces.value(*result.bssid, std::ssize(m_heard));
            }
            if (place == std::ssize(m_heard)) {
                freshPlaces.insert(*result.bssid, place);
                fresh.append(*result.bssid);
                m_heard.push_back(nullptr);
            }
            Sighting** end = &m_heard[static_cast<std::size_t>(place)];
            while (*end) {
                end = &(*end)->next;
            }
            *end = &m_sightings.emplace_back(Sighting{.result = &result});
        }
        m_index.add(fresh);
    }

    SignalHistory sample(qint64 rssi, qint64 noise)
    {
        return {.id = m_identifiers.next(), .timestamp = m_cycle.scanTime, .rssi = rssi, .noise = noise};
    }

    /// Every sighting of one access point in this cycle leaves a sample; the last makes the record.
    void addHeard(qsizetype place, const Sighting& first)
    {
        SignalHistoryList history = m_knownHistories.value(place);
        const CWNetwork* last = nullptr;
        for (const Sighting* sighting = &first; sighting; sighting = sighting->next) {
            last = sighting->result;
            history = history.appended(sample(last->rssiValue, recordNoise), m_historyLimit());
        }
        m_networks.append(makeNetwork(*last, m_cycle.scanTime, m_cycle.currentBSSID, history, m_identifiers));
        m_histories.append(std::move(history));
        m_lastSeen.append(m_cycle.scanTime);
    }

    void addMissed(qsizetype place)
    {
        WiFiNetwork record = m_knownNetworks.at(place);
        record.signalHistory = m_knownHistories.at(place).appended(
            sample(SignalHistory::missedRssi, record.noise), m_historyLimit());
        m_histories.append(record.signalHistory);
        m_networks.append(std::move(record));
        m_lastSeen.append(m_knownLastSeen.at(place));
    }

    const ScanCycle& m_cycle;
    const std::function<qint64()>& m_historyLimit;
    IdentifierSource& m_identifiers;
    BssidIndex m_index;

    // By place, the places known before.
    QList<WiFiNetwork> m_knownNetworks;
    QList<SignalHistoryList> m_knownHistories;
    QList<TimePoint> m_knownLastSeen;

    // By place.
    QList<WiFiNetwork> m_networks;
    QList<SignalHistoryList> m_histories;
    QList<TimePoint> m_lastSeen;
    /// The first sighting in this cycle; null for an access point that was not heard.
    std::vector<Sighting*> m_heard;

    std::vector<Sighting> m_sightings;
};

} // namespace

AccessPoints mergeScan(const AccessPoints& known, const ScanCycle& cycle,
                       const std::function<qint64()>& historyLimit, IdentifierSource& identifiers)
{
    return Merge(known, cycle, historyLimit, identifiers).run();
}

} // namespace aerolith
