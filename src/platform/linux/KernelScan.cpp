#include "platform/linux/KernelScan.h"

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;
using nl80211::ScanTrigger;

KernelScan::KernelScan(nl80211::Nl80211& kernel, std::uint32_t interfaceIndex,
                       std::function<std::optional<bool>()> radioOn, QString whyNotNetworkManager)
    : m_kernel(kernel)
    , m_interfaceIndex(interfaceIndex)
    , m_radioOn(std::move(radioOn))
    , m_whyNotNetworkManager(std::move(whyNotNetworkManager))
{
}

Failure KernelScan::obstacle()
{
    return m_radioOn().value_or(true) ? Failure() : Error{u"The Wi-Fi radio is off"_s};
}

Result<ScanTrigger> KernelScan::request(const std::optional<QByteArray>& ssid)
{
    auto trigger = m_kernel.triggerScan(m_interfaceIndex, ssid);
    if (!trigger.ok()) {
        return Error{u"%1. %2"_s.arg(m_whyNotNetworkManager, trigger.error().description)};
    }
    return trigger;
}

std::optional<nl80211::BootTime> KernelScan::lastScan()
{
    return {};
}

} // namespace aerolith
