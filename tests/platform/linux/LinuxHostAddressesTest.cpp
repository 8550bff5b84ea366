#include "platform/linux/LinuxHostAddresses.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <netinet/in.h>
#include <utility>
#include <vector>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;

/// A device and its address as the system lists them; without one it is down, say.
using Entry = std::pair<const char*, const char*>;

std::optional<QString> addressAmong(const std::vector<Entry>& machine, const std::optional<QString>& wifi)
{
    std::vector<ifaddrs> list(machine.size());
    std::vector<sockaddr_in> addresses(machine.size());
    for (std::size_t i = 0; i < machine.size(); ++i) {
        const auto& [device, address] = machine[i];
        list[i].ifa_name = const_cast<char*>(device);
        if (address != nullptr) {
            auto& socket = addresses[i];
            socket.sin_family = inet_pton(AF_INET, address, &socket.sin_addr) == 1 ? AF_INET : AF_INET6;
            list[i].ifa_addr = reinterpret_cast<sockaddr*>(&socket);
        }
        list[i].ifa_next = i + 1 < list.size() ? &list[i + 1] : nullptr;
    }
    return ipv4AddressOfEn0(list.data(), wifi);
}

} // namespace

TEST(LinuxHostAddresses, TakesTheLastIPv4AddressOfTheDevice)
{
    std::vector<Entry> machine{{"wlan0", nullptr},    {"lo", "127.0.0.1"},       {nullptr, "10.0.0.6"},
                               {"wlan0", "10.0.0.7"}, {"wlan0", "192.168.1.20"}, {"wlan0", "fe80::1"},
                               {"wlan01", "10.1.1.1"}};
    EXPECT_EQ(addressAmong(machine, u"wlan0"_s), u"192.168.1.20"_s);
    EXPECT_EQ(addressAmong(machine, u"wlan"_s), std::nullopt);
    EXPECT_EQ(addressAmong(machine, std::nullopt), std::nullopt);
    machine.emplace_back("en0", nullptr);
    EXPECT_EQ(addressAmong(machine, u"wlan0"_s), std::nullopt) << "a device really has that name";
    machine.emplace_back("en0", "172.16.0.1");
    EXPECT_EQ(addressAmong(machine, u"wlan0"_s), u"172.16.0.1"_s);
    EXPECT_EQ(addressAmong({}, u"wlan0"_s), std::nullopt);
}

} // namespace aerolith
