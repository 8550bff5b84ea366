#pragma once

#include "platform/CLLocationManager.h"
#include "platform/CWWiFiClient.h"
#include "platform/simulated/Scenario.h"

#include <QtGlobal>

#include <memory>

namespace aerolith {

/// Stands between the program and a radio, any radio, and writes down what it answers, as a scenario in which
/// the k-th full scan finds what the k-th one found here. It changes no answer and asks nothing of its own
/// but, after the first scan, what the interface is like. It outlives whatever uses it; the radio outlives
/// it.
///
/// Any thread; one scan engine at a time, which asks for the network name, scans, and then asks for the
/// access point.
class ScenarioRecorder final : public CWWiFiClient
{
public:
    explicit ScenarioRecorder(CWWiFiClient& radio);
    ~ScenarioRecorder() override;

    [[nodiscard]] std::shared_ptr<CWInterface> interface() override;

    /// The first `cycles` full scans, or as many as there were; with none, a machine without Wi-Fi. The radio
    /// is on from start to end: one that was off shows in the errors of its scans. `authorization` is the
    /// user's decision; it is left out where names were delivered against it, for a replay would withhold
    /// them.
    [[nodiscard]] Scenario scenario(qsizetype cycles, CLAuthorizationStatus authorization) const;

    /// Whether there were more scans than a scenario has room for: they are not recorded.
    [[nodiscard]] bool isFull() const;

private:
    class Recording;
    class Interface;

    CWWiFiClient& m_radio;
    /// Shared with the interfaces that were handed out.
    const std::shared_ptr<Recording> m_recording;
};

} // namespace aerolith
