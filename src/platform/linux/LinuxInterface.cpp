#include "platform/linux/LinuxInterface.h"

#include "platform/linux/InterfaceJoin.h"
#include "platform/linux/InterfaceScan.h"
#include "platform/linux/RadioSwitch.h"
#include "platform/linux/ieee80211/Ssid.h"
#include "platform/linux/networkmanager/NetworkManager.h"

#include <chrono>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto longestLook = 1s;

} // namespace

LinuxInterface::LinuxInterface(std::shared_ptr<LinuxWireless> wireless, QString name)
    : m_wireless(std::move(wireless)), m_name(std::move(name))
{
}

std::optional<QString> LinuxInterface::interfaceName() const
{
    return m_name;
}

std::optional<QString> LinuxInterface::hardwareAddress() const
{
    const auto now = info();
    return now && now->address ? std::optional(ieee80211::addressText(*now->address)) : std::nullopt;
}

std::optional<QString> LinuxInterface::ssid() const
{
    const auto entry = joined();
    if (!entry) {
        return {};
    }
    // The interface knows its network's name also where the access point hides it.
    const auto now = info();
    return ieee80211::ssidText(now && now->ssid ? *now->ssid
                                                : ieee80211::ssidBytes(bytesOf(entry->elements)));
}

std::optional<QString> LinuxInterface::bssid() const
{
    const auto entry = joined();
    return entry && entry->address ? std::optional(ieee80211::addressText(*entry->address)) : std::nullopt;
}

qint64 LinuxInterface::transmitPower() const
{
    const auto now = info();
    return now && now->transmitPower ? nl80211::milliwatts(*now->transmitPower) : 0;
}

std::optional<QList<CWChannel>> LinuxInterface::supportedWLANChannels() const
{
    const auto now = info();
    if (!now) {
        return {};
    }
    const auto channels = m_wireless->kernel->supportedChannels(now->radio);
    return channels.ok() && !channels.value().isEmpty() ? std::optional(channels.value()) : std::nullopt;
}

bool LinuxInterface::powerOn() const
{
    // Windows wait for this, at the start too.
    const NetworkManager manager(m_wireless->bus, longestLook);
    if (manager.isRunning()) {
        if (const auto switches = manager.radioSwitches(); switches.ok()) {
            return switches.value().on();
        }
    }
    return radioSwitchedOn(m_wireless->systemFiles, m_name).value_or(true);
}

Failure LinuxInterface::setPower(bool on)
{
    const NetworkManager manager(m_wireless->bus, m_wireless->stopped);
    if (!manager.isRunning()) {
        return notRunning().error();
    }
    const auto switches = manager.radioSwitches();
    if (!switches.ok()) {
        return switches.error();
    }
    if (on && !switches.value().hardwareEnabled) {
        return Error{u"A switch or key of this machine keeps the Wi-Fi radio off"_s};
    }
    const auto error = manager.setWirelessEnabled(on);
    if (!error) {
        return {};
    }
    return error->failure == RemoteFailure::permissionDenied
               ? Error{u"The system does not permit this user to switch the Wi-Fi radio"_s}
               : error->error();
}

Result<QList<CWNetwork>> LinuxInterface::scanForNetworksWithSSID(const std::optional<QByteArray>& ssid)
{
    return scanInterface(*m_wireless, m_name, ssid);
}

Failure LinuxInterface::associateToNetwork(const CWNetwork& network, const std::optional<QString>& password)
{
    return joinNetwork(*m_wireless, m_name, network, password);
}

std::optional<nl80211::InterfaceInfo> LinuxInterface::info() const
{
    const auto now = m_wireless->interface(m_name);
    return now.ok() ? std::optional(now.value()) : std::nullopt;
}

std::optional<nl80211::BssEntry> LinuxInterface::joined() const
{
    const auto now = info();
    if (!now) {
        return {};
    }
    const auto entries = m_wireless->kernel->bssEntries(now->index);
    const auto* entry = entries.ok() ? nl80211::joinedEntry(entries.value()) : nullptr;
    return entry != nullptr ? std::optional(*entry) : std::nullopt;
}

} // namespace aerolith
