#include "model/SelectionStore.h"

namespace aerolith {

SelectionStore::SelectionStore(MainQueue& mainQueue) : m_mainQueue(mainQueue) {}

void SelectionStore::select(const std::optional<WiFiNetwork>& network)
{
    post(network ? std::optional(network->bssid) : std::nullopt);
}

void SelectionStore::clearSelection()
{
    post(std::nullopt);
}

void SelectionStore::post(const std::optional<QString>& bssid)
{
    m_mainQueue.async(m_lifeline.guarded([this, bssid] {
        m_selectedBSSID = bssid;
        Q_EMIT selectedBSSIDChanged();
    }));
}

} // namespace aerolith
