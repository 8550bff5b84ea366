#pragma once

#include "platform/CWNetwork.h"
#include "platform/Result.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace aerolith {

/// One Wi-Fi interface. Every operation may be called from any thread, also from two at once, and asks the
/// radio anew: nothing here is a cached value.
class CWInterface
{
public:
    CWInterface() = default;
    CWInterface(const CWInterface&) = delete;
    CWInterface& operator=(const CWInterface&) = delete;
    virtual ~CWInterface() = default;

    /// The system's name of the interface; absent when not delivered. Does not block.
    [[nodiscard]] virtual std::optional<QString> interfaceName() const = 0;

    /// Lower-case hexadecimal with colons; absent when not delivered. Blocks for one local request.
    [[nodiscard]] virtual std::optional<QString> hardwareAddress() const = 0;

    /// Name of the network that the interface is joined to; absent when there is none or it is withheld.
    /// Blocks for one local request.
    [[nodiscard]] virtual std::optional<QString> ssid() const = 0;

    /// Address of the access point that the interface is joined to, in the form of CWNetwork::bssid; absent
    /// when there is none or it is withheld. Blocks for one local request.
    [[nodiscard]] virtual std::optional<QString> bssid() const = 0;

    /// Milliwatts, rounded to the nearest; 0 when not delivered. Blocks for one local request.
    [[nodiscard]] virtual qint64 transmitPower() const = 0;

    /// One entry per channel object: a number stands once for each width or band it is supported in. Absent
    /// when the interface reports no channel set. Blocks for one local request.
    [[nodiscard]] virtual std::optional<QList<CWChannel>> supportedWLANChannels() const = 0;

    /// Whether the radio is switched on; true when that cannot be told. Blocks for one local request.
    [[nodiscard]] virtual bool powerOn() const = 0;

    /// Switches the radio; the error says why it stayed as it was. Blocks until the system has answered, up
    /// to seconds.
    [[nodiscard]] virtual Failure setPower(bool on) = 0;

    /// Scans and returns every access point heard during this scan, in no particular order; with an SSID (0
    /// to 32 bytes) asks for that name, also a hidden one, and returns only access points of that name. The
    /// error's description says what is missing: radio, permission, service or time. Blocks for the length of
    /// the scan, up to half a minute.
    [[nodiscard]] virtual Result<QList<CWNetwork>>
    scanForNetworksWithSSID(const std::optional<QByteArray>& ssid) = 0;
};

} // namespace aerolith
