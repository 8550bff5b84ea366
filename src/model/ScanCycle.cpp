// The road of one scan cycle through WiFiScanner: triggered on the main thread, performed and merged on the
// scan queue, applied on the main thread.

#include "model/Ordering.h"
#include "model/WiFiScanner.h"

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;

void WiFiScanner::scanNetworks()
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_isScanning) {
            return;
        }
        m_isScanning = true;
    }
    m_surroundings.mainQueue.async(m_lifeline.guarded([this] {
        setStatus(ScannerStatus::scanning);
        m_surroundings.log.line(u"Starting network scan..."_s);
    }));
    // The queue is destroyed before the scanner is: the block needs no guard.
    m_scanQueue->async([this] { performScan(); });
}

void WiFiScanner::performScan()
{
    if (const std::shared_ptr<CWInterface> interface = m_surroundings.wifiClient.interface()) {
        runCycle(*interface);
    } else {
        m_surroundings.log.line(u"No WiFi interface found"_s);
    }
    {
        const std::lock_guard lock(m_mutex);
        m_isScanning = false;
    }
    m_surroundings.mainQueue.async(m_lifeline.guarded([this] { Q_EMIT scanCycleEnded(); }));
}

void WiFiScanner::runCycle(CWInterface& interface)
{
    m_surroundings.log.line(u"Current network: "_s + interface.ssid().value_or(u"None"_s));
    const auto scan = interface.scanForNetworksWithSSID(std::nullopt);
    if (!scan.ok()) {
        m_surroundings.mainQueue.async(
            m_lifeline.guarded([this, error = scan.error()] { handleScanError(error); }));
        return;
    }
    const QList<CWNetwork>& results = scan.value();
    m_surroundings.log.line(u"Found %1 networks"_s.arg(results.size()));
    m_surroundings.mainQueue.async(
        m_lifeline.guarded([this, cycle = processScanResults(results)] { handleScanResults(cycle); }));
}

WiFiScanner::MergedCycle WiFiScanner::processScanResults(const QList<CWNetwork>& results)
{
    AccessPoints known;
    quint64 clears = 0;
    {
        const std::lock_guard lock(m_mutex);
        known = m_accessPoints;
        clears = m_clears;
    }
    ScanCycle cycle{.results = results, .scanTime = m_surroundings.clock.now(), .currentBSSID = {}};
    if (const std::shared_ptr<CWInterface> interface = m_surroundings.wifiClient.interface()) {
        cycle.currentBSSID = interface->bssid();
    }
    const AccessPoints merged = mergeScan(
        known, cycle, [this] { return historyLimit(); }, m_identifiers);

    const std::lock_guard lock(m_mutex);
    if (clears == m_clears) {
        m_accessPoints.networkHistory = merged.networkHistory;
        m_accessPoints.lastSeenTimestamp = merged.lastSeenTimestamp;
    }
    return {.networks = merged.allNetworks, .clears = clears};
}

void WiFiScanner::handleScanResults(const MergedCycle& cycle)
{
    const std::optional<QString> selected = m_selectionStore.selectedBSSID();
    // What was cleared while this cycle was on its way stays cleared: its records would come back without
    // histories.
    const bool overtaken = cycle.clears != m_clears;
    const BssidMap<WiFiNetwork> merged = overtaken ? BssidMap<WiFiNetwork>() : cycle.networks;
    updateNetworks(merged);
    if (selected) {
        if (const auto found = merged.find(*selected); found != merged.end()) {
            m_selectionStore.select(found.value());
        }
    }
    setStatus(ScannerStatus::idle);
    m_surroundings.log.line(u"Network scan completed"_s);
}

void WiFiScanner::handleScanError(const Error& error)
{
    m_error = u"Scan failed: "_s + error.description;
    Q_EMIT errorChanged();
    setStatus(ScannerStatus::error);
    m_surroundings.log.line(*m_error);
}

void WiFiScanner::updateNetworks(const BssidMap<WiFiNetwork>& merged)
{
    const std::optional<QString>& selected = m_selectionStore.selectedBSSID();
    const bool wasListed =
        selected && std::any_of(m_networks.cbegin(), m_networks.cend(),
                                [&](const WiFiNetwork& n) { return n.bssid == *selected; });
    const auto reselected = wasListed ? merged.find(*selected) : merged.end();
    {
        const std::lock_guard lock(m_mutex);
        m_accessPoints.allNetworks = merged;
    }
    m_surroundings.mainQueue.async(m_lifeline.guarded(
        [this, ordered = inScanOrder(visibleNetworks()),
         record = reselected != merged.end() ? std::optional(reselected.value()) : std::nullopt] {
            publishNetworks(ordered);
            if (record) {
                m_selectionStore.select(record);
            }
        }));
}

} // namespace aerolith
