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
    /// to seconds; on the main thread as associateToNetwork() does.
    [[nodiscard]] virtual Failure setPower(bool on) = 0;

    /// Scans and returns every access point heard during this scan, in no particular order; with an SSID (0
    /// to 32 bytes) asks for that name, also a hidden one, and returns only access points of that name. The
    /// error's description says what is missing: radio, permission, service or time. Blocks for the length of
    /// the scan, up to half a minute; on the main thread as associateToNetwork() does.
    [[nodiscard]] virtual Result<QList<CWNetwork>>
    scanForNetworksWithSSID(const std::optional<QByteArray>& ssid) = 0;

    /// Joins the network and waits for the outcome: nothing once the machine is joined and has its address
    /// there; else the error, which tells a wrong password, a network out of reach, a missing permission and
    /// a time-out apart. `network` is one that a scan has found; the join goes by its name and kind, its
    /// access point is only where to begin. `password` is as the user typed it; absent or empty means the one
    /// that the system has stored for the network, if any. A failed join leaves no profile and no password
    /// behind, and what was stored before stays as it was.
    ///
    /// Blocks for up to a minute, twice that where a stored password is replaced, after the time that the
    /// user takes where the system first wants to know who asks. On the main thread windows repaint
    /// meanwhile, timers and posted tasks run, and the user's input waits until the end: what the caller
    /// refers to may have changed by then. Quitting the application ends the join, with an error.
    [[nodiscard]] virtual Failure associateToNetwork(const CWNetwork& network,
                                                     const std::optional<QString>& password) = 0;
};

} // namespace aerolith
