#pragma once

#include "platform/linux/ScanService.h"

#include <QString>

#include <functional>

namespace aerolith {

/// The kernel itself, asked to scan where no NetworkManager does.
class KernelScan : public ScanService
{
public:
    /// `whyNotNetworkManager` is told with every refusal. `radioOn` is as radioSwitchedOn(). `kernel`
    /// outlives this object.
    KernelScan(nl80211::Nl80211& kernel, std::uint32_t interfaceIndex,
               std::function<std::optional<bool>()> radioOn, QString whyNotNetworkManager);

    [[nodiscard]] Failure obstacle() override;
    [[nodiscard]] Failure request(const std::optional<QByteArray>& ssid) override;

    /// Always absent: the kernel does not say.
    [[nodiscard]] std::optional<nl80211::BootTime> lastScan() override;

private:
    nl80211::Nl80211& m_kernel;
    std::uint32_t m_interfaceIndex;
    std::function<std::optional<bool>()> m_radioOn;
    QString m_whyNotNetworkManager;
};

} // namespace aerolith
