#pragma once

#include "platform/CWInterface.h"
#include "platform/HostAddresses.h"

#include <QList>
#include <QString>

#include <optional>

namespace aerolith {

/// The machine's Wi-Fi interface at one moment.
struct InterfaceSnapshot
{
    std::optional<QString> name;
    std::optional<QString> hardwareAddress;
    /// Also of another interface than this one.
    std::optional<QString> ipv4Address;
    std::optional<QString> joinedNetwork;
    /// Milliwatts.
    qint64 transmitPower = 0;
    /// In the system's order; a number may be there several times.
    std::optional<QList<qint64>> channels;

    /// Blocks for local requests. Null is a machine without Wi-Fi.
    [[nodiscard]] static InterfaceSnapshot read(const CWInterface* interface, const HostAddresses& addresses);
};

/// One fact about the interface, verbatim in every language. The value is plain text, what comes from the air
/// in one line.
struct InterfaceFact
{
    QString label;
    QString value;

    friend bool operator==(const InterfaceFact&, const InterfaceFact&) = default;
};

/// What the user is told, in this order.
[[nodiscard]] QList<InterfaceFact> interfaceFacts(const InterfaceSnapshot& snapshot);

} // namespace aerolith
