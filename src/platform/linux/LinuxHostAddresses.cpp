#include "platform/linux/LinuxHostAddresses.h"

#include <QByteArray>

#include <array>
#include <ifaddrs.h>
#include <memory>
#include <netdb.h>
#include <netinet/in.h>

namespace aerolith {

namespace {

constexpr auto en0 = "en0";

bool hasDevice(const ifaddrs* list, const QByteArray& name)
{
    for (const ifaddrs* entry = list; entry != nullptr; entry = entry->ifa_next) {
        if (entry->ifa_name != nullptr && name == entry->ifa_name) {
            return true;
        }
    }
    return false;
}

std::optional<QString> numericHost(const sockaddr* address)
{
    std::array<char, NI_MAXHOST> host{};
    const int code =
        getnameinfo(address, sizeof(sockaddr_in), host.data(), host.size(), nullptr, 0, NI_NUMERICHOST);
    return code == 0 ? std::optional(QString::fromUtf8(host.data())) : std::nullopt;
}

} // namespace

std::optional<QString> ipv4AddressOfEn0(const ifaddrs* list, const std::optional<QString>& wifiInterface)
{
    const QByteArray device = hasDevice(list, en0) ? en0 : wifiInterface.value_or(QString()).toUtf8();
    std::optional<QString> last;
    for (const ifaddrs* entry = list; entry != nullptr; entry = entry->ifa_next) {
        if (entry->ifa_name == nullptr || entry->ifa_addr == nullptr || device != entry->ifa_name ||
            entry->ifa_addr->sa_family != AF_INET) {
            continue;
        }
        if (const auto address = numericHost(entry->ifa_addr)) {
            last = address;
        }
    }
    return last;
}

std::optional<QString> LinuxHostAddresses::localIPv4Address() const
{
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0) {
        return {};
    }
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> owned(list, freeifaddrs);
    const auto wifi = m_wifiClient.interface();
    return ipv4AddressOfEn0(list, wifi != nullptr ? wifi->interfaceName() : std::nullopt);
}

} // namespace aerolith
