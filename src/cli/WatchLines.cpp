#include "cli/WatchLines.h"

#include "export/NetworkJson.h"

#include <utility>

namespace aerolith {

QByteArray WatchLines::ofCycle(int cycle, const WiFiNetworkList& networks)
{
    QByteArray lines;
    QSet<QUuid> records;
    for (const WiFiNetwork& network : networks) {
        lines += networkLineJson(network, cycle, !m_lastRecords.contains(network.id));
        records.insert(network.id);
    }
    m_lastRecords = std::move(records);
    return lines;
}

} // namespace aerolith
