#pragma once

#include "model/WiFiNetwork.h"

#include <QByteArray>
#include <QSet>
#include <QUuid>

namespace aerolith {

/// Writes one cycle after the other as lines of JSON, one for each listed access point.
class WatchLines
{
public:
    /// The lines of one cycle, in the list's order; nothing where the list is empty. `networks` is the list
    /// that the cycle has published.
    [[nodiscard]] QByteArray ofCycle(int cycle, const WiFiNetworkList& networks);

private:
    /// Of the records in the lines of the last cycle. A record is built anew whenever its access point is
    /// heard.
    QSet<QUuid> m_lastRecords;
};

} // namespace aerolith
