#pragma once

#include <QDBusConnection>
#include <QString>

#include <chrono>
#include <optional>

namespace aerolith {

/// Which message bus to talk to: the address of one, or none for the machine's own system bus.
using BusAddress = std::optional<QString>;

/// A connection of its own to a message bus, closed when the object goes. Belongs to the thread that makes
/// it, so that threads never wait for each other's calls.
class BusConnection
{
public:
    static constexpr std::chrono::milliseconds usualCallLimit = std::chrono::seconds(25);

    /// Blocks until the bus has answered.
    explicit BusConnection(const BusAddress& address, std::chrono::milliseconds callLimit = usualCallLimit);
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;
    ~BusConnection();

    /// Not connected when the bus cannot be reached: every call on it then fails.
    [[nodiscard]] const QDBusConnection& connection() const { return m_connection; }

    /// How long a call may wait for its answer.
    [[nodiscard]] std::chrono::milliseconds callLimit() const { return m_callLimit; }

private:
    const std::chrono::milliseconds m_callLimit;
    QDBusConnection m_connection;
};

} // namespace aerolith
