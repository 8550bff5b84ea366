#pragma once

#include <QString>

#include <optional>

namespace aerolith {

/// The machine's own addresses, as they are now. Main thread.
class HostAddresses
{
public:
    HostAddresses() = default;
    HostAddresses(const HostAddresses&) = delete;
    HostAddresses& operator=(const HostAddresses&) = delete;
    virtual ~HostAddresses() = default;

    /// The last IPv4 address of the device "en0", in numbers and dots; absent when it has none. Blocks for
    /// one local request.
    [[nodiscard]] virtual std::optional<QString> localIPv4Address() const = 0;
};

} // namespace aerolith
