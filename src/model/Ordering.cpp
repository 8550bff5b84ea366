#include "model/Ordering.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace aerolith {

namespace {

/// Sorts by keys taken once per record and moves no record but into its final place: records are large.
template <typename KeyOf>
WiFiNetworkList sortedBy(const WiFiNetworkList& networks, KeyOf keyOf)
{
    using Key = std::pair<bool, decltype(keyOf(networks.first()))>;
    std::vector<std::pair<Key, qsizetype>> order;
    order.reserve(static_cast<std::size_t>(networks.size()));
    for (qsizetype i = 0; i < networks.size(); ++i) {
        order.emplace_back(Key(!networks[i].isCurrentNetwork, keyOf(networks[i])), i);
    }
    // The index as the last key makes the order stable.
    std::sort(order.begin(), order.end());

    WiFiNetworkList sorted;
    sorted.reserve(networks.size());
    for (const auto& [key, index] : order) {
        sorted.append(networks[index]);
    }
    return sorted;
}

} // namespace

WiFiNetworkList inScanOrder(const WiFiNetworkList& networks)
{
    // The negative of the smallest integer does not exist; its complement orders the same way.
    return sortedBy(networks, [](const WiFiNetwork& network) { return ~network.rssi; });
}

WiFiNetworkList inOptionOrder(const WiFiNetworkList& networks, SortOption option, const Collation& collation)
{
    switch (option) {
    case SortOption::signal:
        return inScanOrder(networks);
    case SortOption::ssid:
        return sortedBy(networks,
                        [&](const WiFiNetwork& network) { return collation.sortKey(network.ssid); });
    case SortOption::channel:
        return sortedBy(networks, [](const WiFiNetwork& network) { return network.channel; });
    case SortOption::security:
        return sortedBy(networks,
                        [&](const WiFiNetwork& network) { return collation.sortKey(network.security); });
    }
    return networks;
}

} // namespace aerolith
