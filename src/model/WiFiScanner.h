#pragma once

#include "model/Collation.h"
#include "model/IdentifierSource.h"
#include "model/ScanMerge.h"
#include "model/SelectionStore.h"
#include "model/SortOption.h"
#include "model/WiFiNetwork.h"
#include "platform/Lifeline.h"
#include "platform/Surroundings.h"

#include <QObject>

#include <memory>
#include <mutex>
#include <optional>

namespace aerolith {

enum class ScannerStatus
{
    idle,
    scanning,
    error
};

/// Owns every network record and the scan cycle, and publishes the visible list. It waits for location
/// authorization, then scans periodically on a serial queue of its own and merges each scan into its records.
///
/// Main thread, but for the operations said to run on the scan queue. Published properties notify after every
/// assignment, also of an equal value.
class WiFiScanner : public QObject, private CLLocationManagerDelegate
{
    Q_OBJECT

public:
    /// Attaches itself to the location manager; the first scan comes 5.0 seconds after access is granted.
    WiFiScanner(SelectionStore& selectionStore, const Surroundings& surroundings);

    /// Waits for a cycle that is running.
    ~WiFiScanner() override;

    [[nodiscard]] bool locationAccessDenied() const { return m_locationAccessDenied; }

    /// The visible part of allNetworks(), ordered.
    [[nodiscard]] const WiFiNetworkList& networks() const { return m_networks; }

    /// Text of the last failure; absent until the first. A later success does not clear it: status() tells.
    [[nodiscard]] const std::optional<QString>& error() const { return m_error; }

    [[nodiscard]] ScannerStatus status() const { return m_status; }

    /// Whether hidden access points are listed too.
    [[nodiscard]] bool showHiddenNetworks() const { return m_showHiddenNetworks; }

    void setShowHiddenNetworks(bool show);

    [[nodiscard]] SortOption sortOption() const { return m_sortOption; }

    void setSortOption(SortOption option);

    /// Seconds, as stored now.
    [[nodiscard]] double scanInterval() const;

    /// Samples, as stored now. Any thread.
    [[nodiscard]] qint64 historyLimit() const;

    [[nodiscard]] SelectionStore& selectionStore() const { return m_selectionStore; }

    /// A copy, at pointer cost, of everything heard since the start or the last clear. Any thread.
    [[nodiscard]] BssidMap<WiFiNetwork> allNetworks() const;

    /// Any thread.
    [[nodiscard]] BssidMap<SignalHistoryList> networkHistory() const;

    /// Any thread.
    [[nodiscard]] BssidMap<TimePoint> lastSeenTimestamp() const;

    /// Starts a scan cycle, unless one is running.
    void scanNetworks();

    /// Scans every scanInterval() from now on; replaces a running timer.
    void startTimer();

    /// Forgets every record, history and time stamp. A cycle that has begun merging is forgotten with them.
    void clearNetworks();

    /// A directed scan on the caller's thread: one access point of that name, or nothing when there is none
    /// or the scan fails. Blocks for the length of a scan.
    [[nodiscard]] std::optional<CWNetwork> findNetwork(const QString& ssid);

    /// The same for a name that is not UTF-8.
    [[nodiscard]] std::optional<CWNetwork> findNetwork(const QByteArray& ssidBytes);

    /// Derives the visible list anew; it is published on the next turn of the main queue.
    void updateFilteredNetworks();

    [[nodiscard]] bool isHidden(const QString& bssid) const;

    void hideNetwork(const QString& bssid);

    void unhideNetwork(const QString& bssid);

Q_SIGNALS:
    void locationAccessDeniedChanged();
    void networksChanged();
    void errorChanged();
    void statusChanged();
    void showHiddenNetworksChanged();
    void sortOptionChanged();
    /// After every cycle, however it ended: status() has its outcome, the list follows on the next turn. A
    /// cycle that found no interface leaves the status at `scanning`, so that this alone tells its end.
    void scanCycleEnded();

private:
    /// What the merge hands to the main thread. `clears` tells a merge that a clear has overtaken.
    struct MergedCycle
    {
        BssidMap<WiFiNetwork> networks;
        quint64 clears = 0;
    };

    void setupLocationManager();
    void locationManagerDidChangeAuthorization(CLLocationManager& manager) override;

    // Scan queue.
    void performScan();
    void runCycle(CWInterface& interface);
    [[nodiscard]] MergedCycle processScanResults(const QList<CWNetwork>& results);

    // Main thread, posted by the scan queue.
    void handleScanResults(const MergedCycle& cycle);
    void handleScanError(const Error& error);
    void updateNetworks(const BssidMap<WiFiNetwork>& merged);

    void applySortedNetworks(const WiFiNetworkList& networks);
    [[nodiscard]] WiFiNetworkList visibleNetworks() const;
    void publishNetworks(const WiFiNetworkList& networks);
    void setStatus(ScannerStatus status);
    void setLocationAccessDenied(bool denied);

    bool m_locationAccessDenied = false;
    WiFiNetworkList m_networks;
    std::optional<QString> m_error;
    ScannerStatus m_status = ScannerStatus::idle;
    bool m_showHiddenNetworks = true;

    /// Guards the maps, the count of clears and the flag, which both threads use.
    mutable std::mutex m_mutex;
    AccessPoints m_accessPoints;
    quint64 m_clears = 0;
    bool m_isScanning = false;

    Surroundings m_surroundings;
    SortOption m_sortOption = SortOption::signal;
    SelectionStore& m_selectionStore;
    Collation m_collation;
    /// Scan queue only.
    IdentifierSource m_identifiers;
    std::unique_ptr<RepeatingTimer> m_timer;
    Lifeline m_lifeline;
    /// Last: its destruction waits for the running cycle, which uses all of the above.
    std::unique_ptr<SerialQueue> m_scanQueue;
};

} // namespace aerolith
