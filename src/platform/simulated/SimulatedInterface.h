#pragma once

#include "platform/CLLocationManager.h"
#include "platform/CWInterface.h"
#include "platform/simulated/Scenario.h"

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>

namespace aerolith {

/// The user's authorization as it stands: the location manager writes it, the radio withholds by it.
using SharedAuthorization = std::shared_ptr<std::atomic<CLAuthorizationStatus>>;

/// The radio of a scenario. Any thread.
///
/// The k-th full scan that reaches the air answers with the k-th cycle; one that is refused, because the
/// radio is off or gone, uses up no cycle. A cycle of the scan engine asks for the network name, scans, and
/// then asks for the access point; all of it must belong to one cycle of the scenario. So ssid() always
/// answers for the scan to come, and bssid() for the last one. They differ only between two cycles, while the
/// machine is on its way from one network to another. Before the first scan both answer for the first cycle.
class SimulatedInterface final : public CWInterface
{
public:
    /// The scenario has at least one cycle. Where it has no interface, this is a default one that is not
    /// plugged in.
    SimulatedInterface(Scenario scenario, SharedAuthorization authorization);

    [[nodiscard]] std::optional<QString> interfaceName() const override;
    [[nodiscard]] std::optional<QString> hardwareAddress() const override;
    [[nodiscard]] std::optional<QString> ssid() const override;
    [[nodiscard]] std::optional<QString> bssid() const override;
    [[nodiscard]] qint64 transmitPower() const override;
    [[nodiscard]] std::optional<QList<CWChannel>> supportedWLANChannels() const override;
    [[nodiscard]] bool powerOn() const override;
    [[nodiscard]] Failure setPower(bool on) override;

    /// Blocks for the scenario's scan time, unless the scan comes to an end before that: the radio goes off
    /// or away, or stopScanning() is called. By SSID it answers with the networks of that name in the last
    /// full scan's cycle.
    [[nodiscard]] Result<QList<CWNetwork>>
    scanForNetworksWithSSID(const std::optional<QByteArray>& ssid) override;

    /// Joins a network by name: the password must be the one that the scenario lists for it, if it lists one.
    /// The machine stays joined to it through all later cycles.
    [[nodiscard]] Failure associateToNetwork(const CWNetwork& network,
                                             const std::optional<QString>& password) override;

    /// A switch outside the program: it is never refused.
    void switchPower(bool on);

    /// Puts the interface into the machine or takes it out.
    void setPluggedIn(bool pluggedIn);
    [[nodiscard]] bool isPluggedIn() const;

    /// Ends the scans that are under way, and every later one, at once and with an error.
    void stopScanning();

private:
    // The caller holds the mutex.
    [[nodiscard]] Failure refusal() const;
    [[nodiscard]] const ScenarioCycle& cycleOfScan(qsizetype scan) const;
    [[nodiscard]] const ScenarioCycle& lastCycle() const;
    [[nodiscard]] std::optional<ScenarioAssociation> association(const ScenarioCycle& cycle) const;

    [[nodiscard]] bool isAuthorized() const;

    const Scenario m_scenario;
    const ScenarioInterface m_description;
    const SharedAuthorization m_authorization;

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_pluggedIn;
    bool m_powerOn;
    bool m_stopped = false;
    /// Full scans that were answered with a cycle.
    qsizetype m_fullScans = 0;
    std::optional<ScenarioAssociation> m_joinedByUser;
};

} // namespace aerolith
