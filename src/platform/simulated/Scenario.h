#pragma once

#include "platform/CLLocationManager.h"
#include "platform/CWNetwork.h"
#include "platform/Queues.h"
#include "platform/Result.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace aerolith {

/// The longest text of a scenario: 64 MiB.
inline constexpr qsizetype mostScenarioBytes = qsizetype{64} << 20;

/// The network that the machine is joined to. Both absent is as good as not joined.
struct ScenarioAssociation
{
    std::optional<QString> ssid;
    std::optional<QString> bssid;

    friend bool operator==(const ScenarioAssociation&, const ScenarioAssociation&) = default;
};

/// The machine's Wi-Fi interface as it is at start. Absent texts and channels are not delivered.
struct ScenarioInterface
{
    std::optional<QString> name = QStringLiteral("wlan0");
    std::optional<QString> hardwareAddress = QStringLiteral("02:00:00:00:00:00");
    /// Milliwatts.
    qint64 transmitPower = 20;
    /// One entry per channel object, in this order.
    std::optional<QList<qint64>> channels = QList<qint64>{1, 6, 11, 36};
    bool powerOn = true;
    /// When set, every change of the power through the interface fails with this description.
    std::optional<QString> powerRefused;
};

/// What one full scan finds.
struct ScenarioCycle
{
    /// When set, the scan fails with it, and the rest is empty.
    Failure error;
    std::optional<ScenarioAssociation> joined;
    /// As on the air: nothing is withheld here for want of authorization.
    QList<CWNetwork> networks;
};

/// What answers the full scans that follow the last cycle: that cycle, or all of them again from the first.
enum class AfterLast
{
    repeat,
    loop
};

/// The script of a simulated radio: a plain value.
struct Scenario
{
    CLAuthorizationStatus authorization = CLAuthorizationStatus::authorizedWhenInUse;
    /// What the user answers once authorization is requested.
    CLAuthorizationStatus answer = CLAuthorizationStatus::authorizedWhenInUse;
    /// Absent: the machine has no Wi-Fi interface.
    std::optional<ScenarioInterface> interface = ScenarioInterface{};
    /// How long one scan blocks its thread.
    Seconds scanSeconds{0};
    /// At least one.
    QList<ScenarioCycle> cycles;
    AfterLast afterLast = AfterLast::repeat;
    /// Password by SSID. Any password or none will do for an SSID that is not listed.
    QHash<QString, QString> passwords;
};

} // namespace aerolith
