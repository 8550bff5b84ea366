#pragma once

#include "platform/CLLocationManager.h"
#include "platform/CWWiFiClient.h"

#include <functional>
#include <vector>

namespace aerolith {

/// A scan result with an address and a name; what else it is, the test sets.
[[nodiscard]] CWNetwork network(const QString& bssid, const QString& ssid, qint64 rssi = -50);

/// One attempt to join a network.
struct FakeJoin
{
    QByteArray ssidData;
    /// A copy of its own: the program overwrites what it passes.
    std::optional<QString> password;

    friend bool operator==(const FakeJoin&, const FakeJoin&) = default;
};

/// What the machine's Wi-Fi answers, set by the test.
struct FakeAir
{
    std::optional<QString> ssid;
    std::optional<QString> bssid;
    Result<QList<CWNetwork>> scan = QList<CWNetwork>();
    /// The names that directed scans asked for.
    QList<QByteArray> askedFor;
    /// Runs during each scan, on the thread that scans.
    std::function<void()> duringScan;
    bool isOn = true;
    /// Why the radio cannot be switched.
    Failure powerRefusal;
    QList<FakeJoin> joins;
    /// Why a join fails.
    Failure joinFailure;
    /// Runs during each join.
    std::function<void()> duringJoin;
};

class FakeInterface : public CWInterface
{
public:
    explicit FakeInterface(FakeAir& air) : m_air(air) {}

    [[nodiscard]] std::optional<QString> interfaceName() const override { return QStringLiteral("wlan0"); }

    [[nodiscard]] std::optional<QString> hardwareAddress() const override { return {}; }

    [[nodiscard]] std::optional<QString> ssid() const override { return m_air.ssid; }

    [[nodiscard]] std::optional<QString> bssid() const override { return m_air.bssid; }

    [[nodiscard]] qint64 transmitPower() const override { return 0; }

    [[nodiscard]] std::optional<QList<CWChannel>> supportedWLANChannels() const override { return {}; }

    [[nodiscard]] bool powerOn() const override { return m_air.isOn; }

    [[nodiscard]] Failure setPower(bool on) override;

    [[nodiscard]] Result<QList<CWNetwork>>
    scanForNetworksWithSSID(const std::optional<QByteArray>& ssid) override;

    [[nodiscard]] Failure associateToNetwork(const CWNetwork& network,
                                             const std::optional<QString>& password) override;

private:
    FakeAir& m_air;
};

class FakeWiFiClient : public CWWiFiClient
{
public:
    [[nodiscard]] std::shared_ptr<CWInterface> interface() override
    {
        return m_present ? m_interface : nullptr;
    }

    void setPresent(bool present) { m_present = present; }

    FakeAir air;

private:
    bool m_present = true;
    std::shared_ptr<CWInterface> m_interface = std::make_shared<FakeInterface>(air);
};

/// Delivers a change when the test sets it, never by itself.
class FakeLocationManager : public CLLocationManager
{
public:
    void setDelegate(CLLocationManagerDelegate* delegate) override { m_delegate = delegate; }

    [[nodiscard]] CLAuthorizationStatus authorizationStatus() const override { return m_status; }

    void requestWhenInUseAuthorization() override { ++requests; }

    /// What the scanner reads when it is made.
    void setInitial(CLAuthorizationStatus status) { m_status = status; }

    void change(CLAuthorizationStatus status)
    {
        m_status = status;
        m_delegate->locationManagerDidChangeAuthorization(*this);
    }

    int requests = 0;

private:
    CLLocationManagerDelegate* m_delegate = nullptr;
    CLAuthorizationStatus m_status = CLAuthorizationStatus::notDetermined;
};

/// Keeps what a location manager tells it.
class RecordingDelegate : public CLLocationManagerDelegate
{
public:
    void locationManagerDidChangeAuthorization(CLLocationManager& manager) override
    {
        told.push_back(manager.authorizationStatus());
    }

    std::vector<CLAuthorizationStatus> told;
};

} // namespace aerolith
