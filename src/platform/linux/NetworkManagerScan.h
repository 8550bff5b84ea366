#pragma once

#include "platform/linux/ScanService.h"
#include "platform/linux/networkmanager/NetworkManager.h"

#include <QString>

namespace aerolith {

/// NetworkManager, asked to have one of its devices scan.
class NetworkManagerScan : public ScanService
{
public:
    /// `manager` outlives this object.
    NetworkManagerScan(const NetworkManager& manager, QString interfaceName, QString devicePath);

    [[nodiscard]] Failure obstacle() override;
    [[nodiscard]] Failure request(const std::optional<QByteArray>& ssid) override;
    [[nodiscard]] std::optional<nl80211::BootTime> lastScan() override;

private:
    [[nodiscard]] Failure whyNotAllowed();

    const NetworkManager& m_manager;
    QString m_interfaceName;
    QString m_devicePath;
};

} // namespace aerolith
