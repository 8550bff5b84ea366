#include "platform/simulated/ScenarioRecorder.h"

#include "platform/simulated/ScenarioWriter.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace aerolith {

namespace {

/// For what is in a scenario besides its cycles.
constexpr qsizetype roomForTheRest = 64 << 10;

bool tellsNames(const ScenarioCycle& cycle)
{
    return cycle.joined || std::any_of(cycle.networks.begin(), cycle.networks.end(),
                                       [](const CWNetwork& n) { return n.bssid || n.ssid; });
}

ScenarioInterface describe(const CWInterface& interface)
{
    ScenarioInterface description;
    description.name = interface.interfaceName();
    description.hardwareAddress = interface.hardwareAddress();
    description.transmitPower = interface.transmitPower();
    description.channels.reset();
    if (const auto channels = interface.supportedWLANChannels()) {
        description.channels.emplace();
        for (const CWChannel& channel : *channels) {
            description.channels->append(channel.channelNumber);
        }
    }
    return description;
}

} // namespace

class ScenarioRecorder::Recording
{
public:
    void answerName(const std::optional<QString>& ssid)
    {
        const std::scoped_lock lock(m_mutex);
        m_nameBeforeScan = ssid;
    }

    void answerScan(const CWInterface& interface, const Result<QList<CWNetwork>>& scan)
    {
        const std::scoped_lock lock(m_mutex);
        if (!m_interface) {
            m_interface = describe(interface);
        }
        closeCycle();
        if (m_isFull) {
            return;
        }
        m_open.emplace();
        if (scan.ok()) {
            m_open->joined = ScenarioAssociation{m_nameBeforeScan, {}};
            m_open->networks = scan.value();
        } else {
            m_open->error = scan.error();
        }
    }

    void answerAccessPoint(const std::optional<QString>& bssid)
    {
        const std::scoped_lock lock(m_mutex);
        if (m_open && m_open->joined) {
            m_open->joined->bssid = bssid;
        }
    }

    Scenario scenario(qsizetype cycles, CLAuthorizationStatus authorization)
    {
        const std::scoped_lock lock(m_mutex);
        closeCycle();
        Scenario scenario;
        scenario.interface = m_interface;
        scenario.cycles = m_cycles.first(std::min(cycles, m_cycles.size()));
        if (scenario.cycles.isEmpty()) {
            scenario.interface.reset();
            scenario.cycles.append(ScenarioCycle());
        }
        const bool isRefused = authorization == CLAuthorizationStatus::denied ||
                               authorization == CLAuthorizationStatus::restricted;
        if (isRefused && std::none_of(scenario.cycles.begin(), scenario.cycles.end(), tellsNames)) {
            scenario.authorization = authorization;
        }
        return scenario;
    }

    bool isFull()
    {
        const std::scoped_lock lock(m_mutex);
        return m_isFull;
    }

private:
    /// Files the cycle that nothing more is answered about. The caller holds the mutex.
    void closeCycle()
    {
        if (!m_open) {
            return;
        }
        ScenarioCycle cycle = *std::exchange(m_open, std::nullopt);
        if (cycle.joined == ScenarioAssociation()) {
            cycle.joined.reset();
        }
        m_room -= cycleJson(cycle).size();
        m_isFull = m_room < 0;
        if (!m_isFull) {
            m_cycles.append(std::move(cycle));
        }
    }

    std::mutex m_mutex;
    std::optional<QString> m_nameBeforeScan;
    std::optional<ScenarioInterface> m_interface;
    QList<ScenarioCycle> m_cycles;
    /// The cycle of the last scan: its access point may still be asked for.
    std::optional<ScenarioCycle> m_open;
    qsizetype m_room = mostScenarioBytes - roomForTheRest;
    bool m_isFull = false;
};

/// An interface of the radio; what is not a part of a cycle passes through.
class ScenarioRecorder::Interface final : public CWInterface
{
public:
    Interface(std::shared_ptr<CWInterface> interface, std::shared_ptr<Recording> recording)
        : m_interface(std::move(interface)), m_recording(std::move(recording))
    {
    }

    [[nodiscard]] std::optional<QString> interfaceName() const override
    {
        return m_interface->interfaceName();
    }

    [[nodiscard]] std::optional<QString> hardwareAddress() const override
    {
        return m_interface->hardwareAddress();
    }

    [[nodiscard]] std::optional<QString> ssid() const override
    {
        std::optional<QString> ssid = m_interface->ssid();
        m_recording->answerName(ssid);
        return ssid;
    }

    [[nodiscard]] std::optional<QString> bssid() const override
    {
        std::optional<QString> bssid = m_interface->bssid();
        m_recording->answerAccessPoint(bssid);
        return bssid;
    }

    [[nodiscard]] qint64 transmitPower() const override { return m_interface->transmitPower(); }

    [[nodiscard]] std::optional<QList<CWChannel>> supportedWLANChannels() const override
    {
        return m_interface->supportedWLANChannels();
    }

    [[nodiscard]] bool powerOn() const override { return m_interface->powerOn(); }

    [[nodiscard]] Failure setPower(bool on) override { return m_interface->setPower(on); }

    [[nodiscard]] Result<QList<CWNetwork>>
    scanForNetworksWithSSID(const std::optional<QByteArray>& ssid) override
    {
        Result<QList<CWNetwork>> scan = m_interface->scanForNetworksWithSSID(ssid);
        if (!ssid) {
            m_recording->answerScan(*m_interface, scan);
        }
        return scan;
    }

    [[nodiscard]] Failure associateToNetwork(const CWNetwork& network,
                                             const std::optional<QString>& password) override
    {
        return m_interface->associateToNetwork(network, password);
    }

private:
    const std::shared_ptr<CWInterface> m_interface;
    const std::shared_ptr<Recording> m_recording;
};

ScenarioRecorder::ScenarioRecorder(CWWiFiClient& radio)
    : m_radio(radio), m_recording(std::make_shared<Recording>())
{
}

ScenarioRecorder::~ScenarioRecorder() = default;

std::shared_ptr<CWInterface> ScenarioRecorder::interface()
{
    std::shared_ptr<CWInterface> interface = m_radio.interface();
    if (!interface) {
        return nullptr;
    }
    return std::make_shared<Interface>(std::move(interface), m_recording);
}

Scenario ScenarioRecorder::scenario(qsizetype cycles, CLAuthorizationStatus authorization) const
{
    return m_recording->scenario(cycles, authorization);
}

bool ScenarioRecorder::isFull() const
{
    return m_recording->isFull();
}

} // namespace aerolith
