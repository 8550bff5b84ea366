#pragma once

#include <QDBusConnection>
#include <QString>

#include <optional>

namespace aerolith {

/// Which message bus to talk to: the address of one, or none for the machine's own system bus.
using BusAddress = std::optional<QString>;

/// A connection of its own to a message bus, closed when the object goes. Belongs to the thread that makes
/// it, so that threads never wait for each other's calls.
class BusConnection
{
public:
    /// Blocks until the bus has answered.
    explicit BusConnection(const BusAddress& address);
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;
    ~BusConnection();

    /// Not connected when the bus cannot be reached: every call on it then fails.
    [[nodiscard]] const QDBusConnection& connection() const { return m_connection; }

private:
    QDBusConnection m_connection;
};

} // namespace aerolith
