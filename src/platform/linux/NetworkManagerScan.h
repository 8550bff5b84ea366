#pragma once

#include "platform/linux/AskedNames.h"
#include "platform/linux/ScanService.h"
#include "platform/linux/networkmanager/NetworkManager.h"

#include <QString>

namespace aerolith {

/// NetworkManager, asked to have one of its devices scan.
class NetworkManagerScan : public ScanService
{
public:
    /// `manager` and `askedNames` outlive this object.
    NetworkManagerScan(const NetworkManager& manager, AskedNames& askedNames, QString interfaceName,
                       QString devicePath);

    [[nodiscard]] Failure obstacle() override;

    /// Leaves the name out where it was asked for a moment ago: it goes out with NetworkManager's next scan,
    /// or has done so already.
    [[nodiscard]] Failure request(const std::optional<QByteArray>& ssid) override;

    [[nodiscard]] std::optional<nl80211::BootTime> lastScan() override;

private:
    [[nodiscard]] Failure whyNotAllowed();

    const NetworkManager& m_manager;
    AskedNames& m_askedNames;
    QString m_interfaceName;
    QString m_devicePath;
};

} // namespace aerolith
