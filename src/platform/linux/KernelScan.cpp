#include "platform/linux/KernelScan.h"

#include "platform/JoinTexts.h"

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

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
    return m_radioOn().value_or(true) ? Failure() : Error{JoinTexts::radioOff()};
}

Failure KernelScan::request(const std::optional<QByteArray>& ssid)
{
    const auto refusal = m_kernel.triggerScan(m_interfaceIndex, ssid);
    return refusal ? Failure(Error{u"%1. %2"_s.arg(m_whyNotNetworkManager, refusal->description)})
                   : Failure();
}

std::optional<nl80211::BootTime> KernelScan::lastScan()
{
    return {};
}

} // namespace aerolith
