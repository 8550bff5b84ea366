#include "model/WiFiScanner.h"

#include "model/HiddenList.h"
#include "model/Ordering.h"
#include "model/SettingKeys.h"

#include <QSet>

#include <algorithm>
#include <cmath>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// From the grant of access to the first scan.
constexpr Seconds startDelay{5.0};

WiFiNetworkList records(const BssidMap<WiFiNetwork>& map)
{
    WiFiNetworkList records;
    records.reserve(map.size());
    for (const auto& entry : map) {
        records.append(entry.value);
    }
    return records;
}

} // namespace

WiFiScanner::WiFiScanner(SelectionStore& selectionStore, const Surroundings& surroundings)
    : m_surroundings(surroundings)
    , m_selectionStore(selectionStore)
    , m_collation(surroundings.locale.collation)
    , m_scanQueue(surroundings.makeSerialQueue(u"com.app.wifiscanner.scan"_s))
{
    setupLocationManager();
}

WiFiScanner::~WiFiScanner()
{
    m_surroundings.locationManager.setDelegate(nullptr);
}

void WiFiScanner::setupLocationManager()
{
    CLLocationManager& manager = m_surroundings.locationManager;
    manager.setDelegate(this);
    switch (manager.authorizationStatus()) {
    case CLAuthorizationStatus::restricted:
    case CLAuthorizationStatus::denied:
        m_surroundings.log.line(u"Location access denied or restricted."_s);
        return;
    case CLAuthorizationStatus::authorizedAlways:
    case CLAuthorizationStatus::authorizedWhenInUse:
        m_surroundings.log.line(u"Location access granted."_s);
        return;
    case CLAuthorizationStatus::notDetermined:
        manager.requestWhenInUseAuthorization();
        return;
    }
    m_surroundings.log.line(u"Unknown location authorization status."_s);
}

void WiFiScanner::locationManagerDidChangeAuthorization(CLLocationManager& manager)
{
    switch (manager.authorizationStatus()) {
    case CLAuthorizationStatus::restricted:
    case CLAuthorizationStatus::denied:
        m_surroundings.log.line(u"Location access denied or restricted."_s);
        setLocationAccessDenied(true);
        m_surroundings.mainQueue.async(m_lifeline.guarded([this] { m_selectionStore.clearSelection(); }));
        return;
    case CLAuthorizationStatus::authorizedAlways:
    case CLAuthorizationStatus::authorizedWhenInUse:
        m_surroundings.log.line(u"Location access granted. Starting network scan..."_s);
        setLocationAccessDenied(false);
        m_surroundings.mainQueue.asyncAfter(startDelay, m_lifeline.guarded([this] {
            scanNetworks();
            startTimer();
        }));
        return;
    case CLAuthorizationStatus::notDetermined:
        m_surroundings.log.line(u"Location access not determined."_s);
        return;
    }
    m_surroundings.log.line(u"Unknown location authorization status."_s);
}

void WiFiScanner::setShowHiddenNetworks(bool show)
{
    m_showHiddenNetworks = show;
    Q_EMIT showHiddenNetworksChanged();
    updateFilteredNetworks();
}

void WiFiScanner::setSortOption(SortOption option)
{
    m_sortOption = option;
    Q_EMIT sortOptionChanged();
    updateFilteredNetworks();
}

double WiFiScanner::scanInterval() const
{
    const double stored = m_surroundings.userDefaults.doubleForKey(SettingKeys::scanInterval)
                              .value_or(SettingKeys::defaultScanInterval);
    return std::isfinite(stored) && stored > 0 ? stored : SettingKeys::defaultScanInterval;
}

qint64 WiFiScanner::historyLimit() const
{
    return m_surroundings.userDefaults.integerForKey(SettingKeys::historyLimit)
        .value_or(SettingKeys::defaultHistoryLimit);
}

BssidMap<WiFiNetwork> WiFiScanner::allNetworks() const
{
    const std::lock_guard lock(m_mutex);
    return m_accessPoints.allNetworks;
}

BssidMap<SignalHistoryList> WiFiScanner::networkHistory() const
{
    const std::lock_guard lock(m_mutex);
    return m_accessPoints.networkHistory;
}

BssidMap<TimePoint> WiFiScanner::lastSeenTimestamp() const
{
    const std::lock_guard lock(m_mutex);
    return m_accessPoints.lastSeenTimestamp;
}

void WiFiScanner::startTimer()
{
    m_timer.reset();
    m_timer = m_surroundings.mainQueue.scheduledTimer(Seconds(scanInterval()),
                                                      m_lifeline.guarded([this] { scanNetworks(); }));
}

void WiFiScanner::clearNetworks()
{
    {
        const std::lock_guard lock(m_mutex);
        m_accessPoints = {};
        ++m_clears;
    }
    updateFilteredNetworks();
}

std::optional<CWNetwork> WiFiScanner::findNetwork(const QString& ssid)
{
    return findNetwork(ssid.toUtf8());
}

std::optional<CWNetwork> WiFiScanner::findNetwork(const QByteArray& ssidBytes)
{
    const std::shared_ptr<CWInterface> interface = m_surroundings.wifiClient.interface();
    if (!interface) {
        return {};
    }
    const auto found = interface->scanForNetworksWithSSID(ssidBytes);
    if (!found.ok()) {
        m_surroundings.log.line(u"Error finding network: "_s + found.error().description);
        return {};
    }
    return found.value().isEmpty() ? std::nullopt : std::optional(found.value().first());
}

void WiFiScanner::updateFilteredNetworks()
{
    m_surroundings.mainQueue.async(
        m_lifeline.guarded([this, visible = visibleNetworks()] { applySortedNetworks(visible); }));
}

void WiFiScanner::applySortedNetworks(const WiFiNetworkList& networks)
{
    publishNetworks(inOptionOrder(networks, m_sortOption, m_collation));
}

WiFiNetworkList WiFiScanner::visibleNetworks() const
{
    WiFiNetworkList visible = records(allNetworks());
    if (!m_showHiddenNetworks) {
        const QStringList stored = loadHiddenBSSIDs(m_surroundings.userDefaults);
        const QSet<QString> hidden(stored.begin(), stored.end());
        visible.removeIf([&](const WiFiNetwork& network) { return hidden.contains(network.bssid); });
    }
    return visible;
}

bool WiFiScanner::isHidden(const QString& bssid) const
{
    return aerolith::isHidden(m_surroundings.userDefaults, bssid);
}

void WiFiScanner::hideNetwork(const QString& bssid)
{
    saveHiddenBSSIDs(m_surroundings.userDefaults, loadHiddenBSSIDs(m_surroundings.userDefaults) << bssid);
    updateFilteredNetworks();
}

void WiFiScanner::unhideNetwork(const QString& bssid)
{
    QStringList hidden = loadHiddenBSSIDs(m_surroundings.userDefaults);
    hidden.removeAll(bssid);
    saveHiddenBSSIDs(m_surroundings.userDefaults, hidden);
    updateFilteredNetworks();
}

void WiFiScanner::publishNetworks(const WiFiNetworkList& networks)
{
    m_networks = networks;
    Q_EMIT networksChanged();
}

void WiFiScanner::setStatus(ScannerStatus status)
{
    m_status = status;
    Q_EMIT statusChanged();
}

void WiFiScanner::setLocationAccessDenied(bool denied)
{
    m_locationAccessDenied = denied;
    Q_EMIT locationAccessDeniedChanged();
}

} // namespace aerolith
