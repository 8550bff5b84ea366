#pragma once

#include "platform/CWWiFiClient.h"
#include "platform/HostAddresses.h"

struct ifaddrs;

namespace aerolith {

/// The last IPv4 address of "en0" in a list of the system's addresses. Where no device has that name, the
/// Wi-Fi interface stands for it; absent is a machine without one. Entries may lack a name or an address.
[[nodiscard]] std::optional<QString> ipv4AddressOfEn0(const ifaddrs* list,
                                                      const std::optional<QString>& wifiInterface);

/// The addresses that the kernel lists.
class LinuxHostAddresses : public HostAddresses
{
public:
    /// The client outlives this object.
    explicit LinuxHostAddresses(CWWiFiClient& wifiClient) : m_wifiClient(wifiClient) {}

    [[nodiscard]] std::optional<QString> localIPv4Address() const override;

private:
    CWWiFiClient& m_wifiClient;
};

} // namespace aerolith
