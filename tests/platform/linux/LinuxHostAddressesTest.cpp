#include "platform/linux/LinuxHostAddresses.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <cstring>
#include <deque>
#include <ifaddrs.h>
#include <netinet/in.h>
#include <string>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;

/// Addresses as the system lists them.
class AddressList
{
public:
    AddressList& addIPv4(const std::string& device, const char* address)
    {
        sockaddr_in socket{};
        socket.sin_family = AF_INET;
        EXPECT_EQ(inet_pton(AF_INET, address, &socket.sin_addr), 1);
        return add(device, &socket, sizeof socket);
    }

    AddressList& addIPv6(const std::string& device)
    {
        sockaddr_in6 socket{};
        socket.sin6_family = AF_INET6;
        return add(device, &socket, sizeof socket);
    }

    /// A device that is down, say: listed without an address.
    AddressList& addNameOnly(const std::string& device) { return add(device, nullptr, 0); }

    [[nodiscard]] const ifaddrs* first() const
    {
        return m_entries.empty() ? nullptr : &m_entries.front().entry;
    }

private:
    struct Entry
    {
        std::string name;
        sockaddr_storage address{};
        ifaddrs entry{};
    };

    AddressList& add(const std::string& device, const void* address, std::size_t size)
    {
        // A deque's elements stay where they are.
        Entry& added = m_entries.emplace_back();
        added.name = device;
        added.entry.ifa_name = added.name.data();
        if (address != nullptr) {
            std::memcpy(&added.address, address, size);
            added.entry.ifa_addr = reinterpret_cast<sockaddr*>(&added.address);
        }
        if (m_entries.size() > 1) {
            m_entries[m_entries.size() - 2].entry.ifa_next = &added.entry;
        }
        return *this;
    }

    std::deque<Entry> m_entries;
};

} // namespace

TEST(LinuxHostAddresses, TakesTheLastIPv4AddressOfTheDevice)
{
    AddressList machine;
    machine.addNameOnly("wlan0").addIPv4("lo", "127.0.0.1").addIPv4("wlan0", "10.0.0.7");
    machine.addIPv4("wlan0", "192.168.1.20").addIPv6("wlan0").addIPv4("wlan01", "10.1.1.1");
    EXPECT_EQ(ipv4AddressOfEn0(machine.first(), u"wlan0"_s), u"192.168.1.20"_s);
    EXPECT_EQ(ipv4AddressOfEn0(machine.first(), u"wlan"_s), std::nullopt);
    EXPECT_EQ(ipv4AddressOfEn0(machine.first(), std::nullopt), std::nullopt);

    machine.addNameOnly("en0");
    EXPECT_EQ(ipv4AddressOfEn0(machine.first(), u"wlan0"_s), std::nullopt) << "a device really has that name";
    machine.addIPv4("en0", "172.16.0.1");
    EXPECT_EQ(ipv4AddressOfEn0(machine.first(), u"wlan0"_s), u"172.16.0.1"_s);

    AddressList nameless;
    nameless.addIPv4("wlan0", "10.0.0.7");
    const_cast<ifaddrs*>(nameless.first())->ifa_name = nullptr;
    EXPECT_EQ(ipv4AddressOfEn0(nameless.first(), u"wlan0"_s), std::nullopt);
    EXPECT_EQ(ipv4AddressOfEn0(nullptr, u"wlan0"_s), std::nullopt);
}

} // namespace aerolith
