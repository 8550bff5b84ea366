#include "platform/linux/InterfaceJoin.h"

#include "platform/JoinTexts.h"
#include "platform/Secret.h"
#include "platform/linux/DeviceObstacle.h"
#include "platform/linux/Management.h"
#include "platform/linux/networkmanager/Activation.h"
#include "platform/linux/networkmanager/JoinFailure.h"
#include "platform/linux/networkmanager/JoinSettings.h"
#include "platform/linux/networkmanager/NetworkManager.h"
#include "platform/linux/networkmanager/StoredProfile.h"
#include "platform/linux/nl80211/Sightings.h"

namespace aerolith {

using namespace Qt::StringLiterals;
using nl80211::BootTime;

namespace {

class Join
{
public:
    Join(LinuxWireless& wireless, const NetworkManager& manager, QString interfaceName, QString devicePath,
         const CWNetwork& network, QString accessPointPath)
        : m_wireless(wireless)
        , m_manager(manager)
        , m_interfaceName(std::move(interfaceName))
        , m_devicePath(std::move(devicePath))
        , m_network(network)
        , m_accessPointPath(std::move(accessPointPath))
    {
    }

    [[nodiscard]] Failure run(const QString& password)
    {
        const auto found = storedProfile(m_manager.bus(), m_devicePath, m_network);
        if (!found.ok()) {
            return found.error();
        }
        const auto& stored = found.value();
        if (stored && password.isEmpty()) {
            return activate(*stored);
        }
        const auto settings = joinSettings(m_network, isHidden(), password);
        if (!settings.ok()) {
            return settings.error();
        }
        // A login's profile has no place for a password that everybody shares.
        if (!stored || stored->settings.contains(u"802-1x"_s)) {
            return joinAndKeep(settings.value());
        }
        const auto isStored = hasPassword(m_manager.bus(), *stored, settings.value());
        if (!isStored.ok()) {
            return isStored.error();
        }
        return isStored.value() ? activate(*stored) : replacePassword(*stored, settings.value());
    }

private:
    [[nodiscard]] bool isHidden() const
    {
        return nl80211::hidesName(m_wireless.entries(m_interfaceName), *m_network.bssid);
    }

    [[nodiscard]] Failure activate(const StoredProfile& profile) const
    {
        const auto begun = nl80211::bootTimeNow();
        Activation activation(m_manager, m_devicePath);
        return failureOf(activation.activate(profile.path, m_accessPointPath, m_wireless.stopped), begun);
    }

    [[nodiscard]] Failure joinAndKeep(const ConnectionSettings& settings) const
    {
        const auto begun = nl80211::bootTimeNow();
        Activation activation(m_manager, m_devicePath);
        const auto end = activation.activateNew(settings, m_accessPointPath, m_wireless.stopped);
        if (auto failure = failureOf(end, begun)) {
            return failure;
        }
        note(keepProfile(m_manager.bus(), end.profilePath));
        return {};
    }

    [[nodiscard]] Failure replacePassword(const StoredProfile& stored,
                                          const ConnectionSettings& settings) const
    {
        const auto begun = nl80211::bootTimeNow();
        {
            Activation proof(m_manager, m_devicePath);
            const auto end = proof.activateNew(settings, m_accessPointPath, m_wireless.stopped);
            if (auto failure = failureOf(end, begun)) {
                return failure;
            }
        }
        if (auto failure = storePassword(m_manager.bus(), stored, settings)) {
            note(failure);
            return {};
        }
        return activate(stored);
    }

    /// The machine is joined, but only until it leaves the network.
    void note(const Failure& failure) const
    {
        if (failure) {
            m_wireless.log.line(
                u"The network's password could not be stored: %1"_s.arg(failure->description));
        }
    }

    [[nodiscard]] Failure failureOf(const ActivationEnd& end, BootTime begun) const
    {
        if (end.outcome == ActivationOutcome::activated) {
            return {};
        }
        if (end.outcome == ActivationOutcome::failed) {
            // NetworkManager's reasons do not name these.
            if (auto obstacle = deviceObstacle(m_manager, m_interfaceName)) {
                return obstacle;
            }
        }
        const auto stillHeard = m_wireless.isHeard(m_interfaceName, m_network.ssidData, begun);
        return joinFailure(end, m_network, stillHeard);
    }

    LinuxWireless& m_wireless;
    const NetworkManager& m_manager;
    const QString m_interfaceName;
    const QString m_devicePath;
    const CWNetwork& m_network;
    const QString m_accessPointPath;
};

} // namespace

Failure joinNetwork(LinuxWireless& wireless, const QString& name, const CWNetwork& network,
                    const std::optional<QString>& password)
{
    if (!network.bssid || network.ssidData.isEmpty()) {
        return Error{JoinTexts::tr("The network's name is not known")};
    }
    const auto info = wireless.interface(name);
    if (!info.ok()) {
        return info.error();
    }
    const NetworkManager manager(wireless.bus, wireless.stopped);
    const auto management = managementOf(manager, name);
    if (!management.ok()) {
        return management.error();
    }
    const auto& device = management.value().device;
    if (!device) {
        return Error{management.value().whyNot};
    }
    if (auto obstacle = deviceObstacle(manager, name)) {
        return obstacle;
    }
    const auto& devicePath = device->path;
    const auto accessPoint = manager.accessPoint(devicePath, *network.bssid, network.ssidData);
    if (!accessPoint.ok()) {
        return accessPoint.error();
    }
    const Secret secret(password.value_or(QString()));
    // The root path stands for "any".
    return Join(wireless, manager, name, devicePath, network, accessPoint.value().value_or(u"/"_s))
        .run(secret.text());
}

} // namespace aerolith
