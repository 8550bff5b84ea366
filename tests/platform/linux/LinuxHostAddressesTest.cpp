#include "platform/linux/LinuxHostAddresses.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <deque>
#include <ifaddrs.h>
#include <netinet/in.h>

namespace aerolith {
namespace {

using namespace Qt::StringLiterals;

/// Addresses as the system lists them.
class AddressList
{
public:
    /// Without an address it is a device that is down, say.
    AddressList& add(const char* device, const char* address = nullptr)
    {
        // A deque's elements stay where they are.
        Entry& added = m_entries.emplace_back();
        added.entry.ifa_name = const_cast<char*>(device);
        if (address != nullptr) {
            auto& socket = reinterpret_cast<sockaddr_in&>(added.address);
            socket.sin_family = inet_pton(AF_INET, address, &socket.sin_addr) == 1 ? AF_INET : AF_INET6;
            added.entry.ifa_addr = reinterpret_cast<sockaddr*>(&added.address);
        }
        if (m_entries.size() > 1) {
            m_entries[m_entries.size() - 2].entry.ifa_next = &added.entry;
        }
        return *this;
    }

    [[nodiscard]] const ifaddrs* first() const
    {
        return m_entries.empty() ? nullptr : &m_entries.front().entry;
    }

private:
    struct Entry
    {
        sockaddr_storage address{};
        ifaddrs entry{};
    };

    std::deque<Entry> m_entries;
};

} // namespace

TEST(LinuxHostAddresses, TakesTheLastIPv4AddressOfTheDevice)
{
    AddressList machine;
    machine.add("wlan0").add("lo", "127.0.0.1").add("wlan0", "10.0.0.7").add("wlan0", "192.168.1.20");
    machine.add("wlan0", "fe80::1").add("wlan01", "10.1.1.1");
    EXPECT_EQ(ipv4AddressOfEn0(machine.first(), u"wlan0"_s), u"192.168.1.20"_s);
    EXPECT_EQ(ipv4AddressOfEn0(machine.first(), u"wlan"_s), std::nullopt);
    EXPECT_EQ(ipv4AddressOfEn0(machine.first(), std::nullopt), std::nullopt);

    machine.add("en0");
    EXPECT_EQ(ipv4AddressOfEn0(machine.first(), u"wlan0"_s), std::nullopt) << "a device really has that name";
    machine.add("en0", "172.16.0.1");
    EXPECT_EQ(ipv4AddressOfEn0(machine.first(), u"wlan0"_s), u"172.16.0.1"_s);

    AddressList nameless;
    nameless.add(nullptr, "10.0.0.7");
    EXPECT_EQ(ipv4AddressOfEn0(nameless.first(), u"wlan0"_s), std::nullopt);
    EXPECT_EQ(ipv4AddressOfEn0(nullptr, u"wlan0"_s), std::nullopt);
}

} // namespace aerolith
