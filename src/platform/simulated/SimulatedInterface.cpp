#include "platform/simulated/SimulatedInterface.h"

#include "platform/JoinTexts.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace aerolith {

namespace {

CWNetwork withheld(CWNetwork network)
{
    network.bssid.reset();
    network.ssid.reset();
    network.ssidData.clear();
    return network;
}

} // namespace

SimulatedInterface::SimulatedInterface(Scenario scenario, SharedAuthorization authorization)
    : m_scenario(std::move(scenario))
    , m_description(m_scenario.interface.value_or(ScenarioInterface{}))
    , m_authorization(std::move(authorization))
    , m_pluggedIn(m_scenario.interface.has_value())
    , m_powerOn(m_description.powerOn)
{
}

std::optional<QString> SimulatedInterface::interfaceName() const
{
    return m_description.name;
}

std::optional<QString> SimulatedInterface::hardwareAddress() const
{
    return isPluggedIn() ? m_description.hardwareAddress : std::nullopt;
}

std::optional<QString> SimulatedInterface::ssid() const
{
    const std::scoped_lock lock(m_mutex);
    const std::optional<ScenarioAssociation> joined = association(cycleOfScan(m_fullScans));
    return joined ? joined->ssid : std::nullopt;
}

std::optional<QString> SimulatedInterface::bssid() const
{
    const std::scoped_lock lock(m_mutex);
    const std::optional<ScenarioAssociation> joined = association(lastCycle());
    return joined ? joined->bssid : std::nullopt;
}

qint64 SimulatedInterface::transmitPower() const
{
    return isPluggedIn() ? m_description.transmitPower : 0;
}

std::optional<QList<CWChannel>> SimulatedInterface::supportedWLANChannels() const
{
    if (!isPluggedIn() || !m_description.channels) {
        return {};
    }
    QList<CWChannel> channels;
    for (const qint64 number : *m_description.channels) {
        channels.append({number, static_cast<int>(CWChannelWidth::mhz20)});
    }
    return channels;
}

bool SimulatedInterface::powerOn() const
{
    const std::scoped_lock lock(m_mutex);
    return m_powerOn || !m_pluggedIn;
}

Failure SimulatedInterface::setPower(bool on)
{
    if (!isPluggedIn()) {
        return Error{JoinTexts::tr("The Wi-Fi interface is gone")};
    }
    if (m_description.powerRefused) {
        return Error{*m_description.powerRefused};
    }
    switchPower(on);
    return {};
}

Result<QList<CWNetwork>> SimulatedInterface::scanForNetworksWithSSID(const std::optional<QByteArray>& ssid)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, m_scenario.scanSeconds, [this] { return m_stopped || refusal().has_value(); });
    if (const Failure failure = refusal()) {
        return *failure;
    }
    if (m_stopped) {
        return Error{u"The scan was stopped"_s};
    }
    if (!ssid) {
        ++m_fullScans;
    }
    const ScenarioCycle& cycle = lastCycle();
    if (cycle.error) {
        return *cycle.error;
    }
    const bool authorized = isAuthorized();
    if (!ssid && authorized) {
        return cycle.networks;
    }
    QList<CWNetwork> heard;
    for (const CWNetwork& network : cycle.networks) {
        if (!ssid || (network.ssid && network.ssidData == *ssid)) {
            heard.append(authorized ? network : withheld(network));
        }
    }
    return heard;
}

Failure SimulatedInterface::associateToNetwork(const CWNetwork& network,
                                               const std::optional<QString>& password)
{
    const std::scoped_lock lock(m_mutex);
    if (Failure failure = refusal()) {
        return failure;
    }
    const auto needed = m_scenario.passwords.constFind(QString::fromUtf8(network.ssidData));
    if (needed != m_scenario.passwords.cend() && *needed != password.value_or(QString())) {
        return Error{JoinTexts::tr("The password is not correct")};
    }
    m_joinedByUser = ScenarioAssociation{network.ssid, network.bssid};
    return {};
}

void SimulatedInterface::switchPower(bool on)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_powerOn = on;
    }
    m_changed.notify_all();
}

void SimulatedInterface::setPluggedIn(bool pluggedIn)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_pluggedIn = pluggedIn;
    }
    m_changed.notify_all();
}

bool SimulatedInterface::isPluggedIn() const
{
    const std::scoped_lock lock(m_mutex);
    return m_pluggedIn;
}

void SimulatedInterface::stopScanning()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_stopped = true;
    }
    m_changed.notify_all();
}

Failure SimulatedInterface::refusal() const
{
    if (!m_pluggedIn) {
        return Error{JoinTexts::tr("The Wi-Fi interface is gone")};
    }
    if (!m_powerOn) {
        return Error{JoinTexts::radioOff()};
    }
    return {};
}

const ScenarioCycle& SimulatedInterface::cycleOfScan(qsizetype scan) const
{
    const qsizetype count = m_scenario.cycles.size();
    return m_scenario.cycles.at(m_scenario.afterLast == AfterLast::loop ? scan % count
                                                                        : std::min(scan, count - 1));
}

const ScenarioCycle& SimulatedInterface::lastCycle() const
{
    return cycleOfScan(std::max<qsizetype>(m_fullScans - 1, 0));
}

std::optional<ScenarioAssociation> SimulatedInterface::association(const ScenarioCycle& cycle) const
{
    if (refusal() || !isAuthorized()) {
        return {};
    }
    return m_joinedByUser ? m_joinedByUser : cycle.joined;
}

bool SimulatedInterface::isAuthorized() const
{
    const CLAuthorizationStatus status = m_authorization->load();
    return status == CLAuthorizationStatus::authorizedAlways ||
           status == CLAuthorizationStatus::authorizedWhenInUse;
}

} // namespace aerolith
