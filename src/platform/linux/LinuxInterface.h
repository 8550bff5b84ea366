#pragma once

#include "platform/CWInterface.h"
#include "platform/linux/LinuxWireless.h"

#include <memory>

namespace aerolith {

/// One Wi-Fi interface, by its kernel name. What it hears and what it is joined to is read from the kernel;
/// NetworkManager, where it runs, is asked for scans, joins networks and switches the radio.
class LinuxInterface : public CWInterface
{
public:
    LinuxInterface(std::shared_ptr<LinuxWireless> wireless, QString name);

    [[nodiscard]] std::optional<QString> interfaceName() const override;
    [[nodiscard]] std::optional<QString> hardwareAddress() const override;
    [[nodiscard]] std::optional<QString> ssid() const override;
    [[nodiscard]] std::optional<QString> bssid() const override;
    [[nodiscard]] qint64 transmitPower() const override;
    [[nodiscard]] std::optional<QList<CWChannel>> supportedWLANChannels() const override;
    [[nodiscard]] bool powerOn() const override;
    [[nodiscard]] Failure setPower(bool on) override;
    [[nodiscard]] Result<QList<CWNetwork>>
    scanForNetworksWithSSID(const std::optional<QByteArray>& ssid) override;
    [[nodiscard]] Failure associateToNetwork(const CWNetwork& network,
                                             const std::optional<QString>& password) override;

private:
    [[nodiscard]] std::optional<nl80211::InterfaceInfo> info() const;
    [[nodiscard]] std::optional<nl80211::BssEntry> joined() const;

    std::shared_ptr<LinuxWireless> m_wireless;
    QString m_name;
};

} // namespace aerolith
