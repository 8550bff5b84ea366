#include "model/Ordering.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace aerolith {

namespace {

/// Sorts by keys taken once per record and moves no record but into its final place: records are large, and
/// each copy counts up a handful of shared parts.
template <typename KeyOf>
WiFiNetworkList sortedBy(WiFiNetworkList networks, KeyOf keyOf)
{
    using Key = std::pair<bool, decltype(keyOf(std::as_const(networks).first()))>;
    std::vector<std::pair<Key, qsizetype>> order;
    order.reserve(static_cast<std::size_t>(networks.size()));
    for (qsizetype i = 0; i < networks.size(); ++i) {
        const WiFiNetwork& network = networks.at(i);
        order.emplace_back(Key(!network.isCurrentNetwork, keyOf(network)), i);
    }
    // The index as the last key makes the order stable.
    std::sort(order.begin(), order.end());

    WiFiNetworkList sorted;
    sorted.reserve(networks.size());
    const auto records = networks.begin();
    for (const auto& [key, index] : order) {
        sorted.append(std::move(records[index]));
    }
    return sorted;
}

} // namespace

WiFiNetworkList inScanOrder(WiFiNetworkList networks)
{
    // The negative of the smallest integer does not exist; its complement orders the same way.
    return sortedBy(std::move(networks), [](const WiFiNetwork& network) { return ~network.rssi; });
}

WiFiNetworkList inOptionOrder(WiFiNetworkList networks, SortOption option, const Collation& collation)
{
    switch (option) {
    case SortOption::signal:
        return inScanOrder(std::move(networks));
    case SortOption::ssid:
        return sortedBy(std::move(networks),
                        [&](const WiFiNetwork& network) { return collation.sortKey(network.ssid); });
    case SortOption::channel:
        return sortedBy(std::move(networks), [](const WiFiNetwork& network) { return network.channel; });
    case SortOption::security:
        return sortedBy(std::move(networks),
                        [&](const WiFiNetwork& network) { return collation.sortKey(network.security); });
    }
    return networks;
}

} // namespace aerolith
