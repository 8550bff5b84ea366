#pragma once

#include "platform/Result.h"
#include "platform/linux/networkmanager/BusConnection.h"
#include "platform/linux/networkmanager/RemoteError.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <optional>

namespace aerolith {

/// The radio switches of all Wi-Fi devices together.
struct RadioSwitches
{
    bool enabled = true;
    /// False while a switch or key of the machine keeps the radio off.
    bool hardwareEnabled = true;

    [[nodiscard]] bool on() const { return enabled && hardwareEnabled; }
};

/// NetworkManager's device states that matter here, by their numbers on the bus. Between `disconnected` and
/// `activated` it is joining a network, beyond `activated` it is leaving one.
enum class DeviceState : quint32
{
    unknown = 0,
    unmanaged = 10,
    unavailable = 20,
    disconnected = 30,
    preparing = 40,
    gettingAddress = 70,
    activated = 100,
};

/// A device as NetworkManager has it.
struct ManagedDevice
{
    /// Its object on the bus: valid until the device goes or NetworkManager ends.
    QString path;
    /// May be a number that has no name.
    DeviceState state = DeviceState::unknown;
};

/// NetworkManager as seen by one thread: every operation waits until the answer is there, as BusConnection
/// does, and at most for the limit given. To be made and used on the same thread.
class NetworkManager
{
public:
    static const QString serviceName;
    static const QString objectPath;
    /// Of NetworkManager's devices.
    static const QString deviceInterface;

    explicit NetworkManager(const BusAddress& address,
                            std::chrono::milliseconds callLimit = BusConnection::usualCallLimit);
    /// Handles the thread's events while it waits. Where a wait is ended, the operation fails: `stopped` is
    /// as for BusConnection.
    NetworkManager(const BusAddress& address, const std::atomic<bool>& stopped);
    ~NetworkManager();

    /// Also false when there is no bus.
    [[nodiscard]] bool isRunning() const { return isRunningOn(m_bus); }

    [[nodiscard]] static bool isRunningOn(const BusConnection& bus);

    [[nodiscard]] Result<RadioSwitches> radioSwitches() const;

    /// Switches the radio of every Wi-Fi device and waits until it reports the change, at most ten more
    /// seconds.
    [[nodiscard]] std::optional<RemoteError> setWirelessEnabled(bool enabled) const;

    /// Absent when NetworkManager has no device of that interface name.
    [[nodiscard]] Result<std::optional<ManagedDevice>> device(const QString& interfaceName) const;

    /// When the device's newest scan ended, since boot with sleep included; absent when it has not scanned
    /// yet, see lastScanTime().
    [[nodiscard]] Result<std::optional<std::chrono::milliseconds>> lastScan(const QString& devicePath) const;

    /// Has the device scan, for the name given too when there is one; returns when the request is accepted,
    /// which is before the scan and, by NetworkManager's own limit of scans, up to 8 seconds before its
    /// start.
    [[nodiscard]] std::optional<RemoteError> requestScan(const QString& devicePath,
                                                         const std::optional<QByteArray>& ssid) const;

    /// What NetworkManager says is the address of the access point that the device is joined to, lower case;
    /// absent when it names none.
    [[nodiscard]] Result<std::optional<QString>> activeAccessPointAddress(const QString& devicePath) const;

    /// The object of the access point with that address and name, else of any with that name; absent when
    /// the device has heard none. One call, however many it has heard.
    [[nodiscard]] Result<std::optional<QString>>
    accessPoint(const QString& devicePath, const QString& address, const QByteArray& ssid) const;

    /// Ends an active connection, by its object; returns before it has ended. NetworkManager's answer is
    /// waited for on the event loop, also while the application quits, but for two seconds at most.
    void deactivate(const QString& activePath) const;

    [[nodiscard]] const BusConnection& bus() const { return m_bus; }

private:
    [[nodiscard]] std::optional<RemoteError> awaitSwitch(bool enabled) const;

    BusConnection m_bus;
};

/// The time that NetworkManager's LastScan stands for; absent for its "never", which is -1, and for what no
/// clock reaches.
[[nodiscard]] std::optional<std::chrono::milliseconds> lastScanTime(qint64 milliseconds);

/// The options of NetworkManager's RequestScan for a full scan, or for one that asks for a name too.
[[nodiscard]] QVariantMap scanOptions(const std::optional<QByteArray>& ssid);

} // namespace aerolith
