#pragma once

#include <QDBusConnection>
#include <QString>

#include <atomic>
#include <chrono>
#include <optional>

class QDBusPendingCall;

namespace aerolith {

/// Which message bus to talk to: the address of one, or none for the machine's own system bus.
using BusAddress = std::optional<QString>;

/// A connection of its own to a message bus, closed when the object goes. Belongs to the thread that makes
/// it, so that threads never wait for each other's calls.
///
/// How the thread waits for answers is the maker's to choose. Handling events meanwhile is for whoever
/// reckons with it, as the user's joins and switches do: anything may have changed by the end. What a view
/// asks while it is drawn, as whether the radio is on, must not be interrupted by what draws it again; it
/// blocks, and briefly.
class BusConnection
{
public:
    static constexpr std::chrono::milliseconds usualCallLimit = std::chrono::seconds(25);

    /// Blocks until the bus has answered. The thread stands still while it waits for a call.
    explicit BusConnection(const BusAddress& address, std::chrono::milliseconds callLimit = usualCallLimit);

    /// The same, but while it waits for a call the thread handles its events, all but the user's input. Every
    /// wait ends when the application quits, on its own thread, and within a tenth of a second after
    /// `stopped` has been set, which outlives this object. Needs an application.
    BusConnection(const BusAddress& address, const std::atomic<bool>& stopped);

    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;
    ~BusConnection();

    /// Not connected when the bus cannot be reached: every call on it then fails.
    [[nodiscard]] const QDBusConnection& connection() const { return m_connection; }

    /// How long a call may wait for its answer.
    [[nodiscard]] std::chrono::milliseconds callLimit() const { return m_callLimit; }

    /// Waits for the answer to a call on this connection; returns without it where the wait is ended.
    void await(const QDBusPendingCall& call) const;

    /// Waits for that long; false where the wait is ended.
    [[nodiscard]] bool pause(std::chrono::milliseconds duration) const;

private:
    const std::chrono::milliseconds m_callLimit;
    /// None where the thread stands still.
    const std::atomic<bool>* const m_stopped = nullptr;
    QDBusConnection m_connection;
};

} // namespace aerolith
