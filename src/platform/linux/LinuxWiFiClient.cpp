#include "platform/linux/LinuxWiFiClient.h"

#include "platform/linux/LinuxInterface.h"

#include <linux/nl80211.h>

#include <utility>

namespace aerolith {

LinuxWiFiClient::LinuxWiFiClient(Log& log, BusAddress bus, std::unique_ptr<nl80211::Nl80211> kernel,
                                 QString systemFiles)
    : m_wireless(
          std::make_shared<LinuxWireless>(std::move(kernel), std::move(bus), std::move(systemFiles), log))
    , m_scanWatch(*m_wireless->kernel, m_wireless->scansUnderWay)
{
}

std::shared_ptr<CWInterface> LinuxWiFiClient::interface()
{
    const auto interfaces = m_wireless->kernel->interfaces();
    if (!interfaces.ok()) {
        if (!m_failureLogged.exchange(true)) {
            m_wireless->log.line(interfaces.error().description);
        }
        return nullptr;
    }
    for (const auto& info : interfaces.value()) {
        const auto joinsNetworks = info.type == NL80211_IFTYPE_STATION || info.type == NL80211_IFTYPE_ADHOC;
        if (joinsNetworks && info.index != 0) {
            return std::make_shared<LinuxInterface>(m_wireless, info.name);
        }
    }
    return nullptr;
}

void LinuxWiFiClient::stopScanning()
{
    m_wireless->stopped = true;
}

} // namespace aerolith
