#pragma once

#include "platform/Result.h"
#include "platform/linux/networkmanager/BusConnection.h"
#include "platform/linux/networkmanager/NetworkManager.h"
#include "platform/linux/networkmanager/RemoteError.h"

#include <QDBusArgument>
#include <QDBusPendingCall>
#include <QMetaType>
#include <QVariant>

#include <optional>

namespace aerolith {

// Calls to objects of NetworkManager. Each ends within the connection's limit.

/// One by the proxy of an interface, whose methods return before they are answered.
template <typename Proxy>
class Call
{
public:
    Call(const BusConnection& bus, const QString& path)
        : m_proxy(NetworkManager::serviceName, path, bus.connection())
    {
        m_proxy.setTimeout(static_cast<int>(bus.callLimit().count()));
    }

    Proxy& proxy() { return m_proxy; }

private:
    Proxy m_proxy;
};

/// One to an interface that there is no proxy for.
[[nodiscard]] QDBusPendingCall callMethod(const BusConnection& bus, const QString& path,
                                          const QString& interface, const QString& method,
                                          const QVariantList& arguments = {});

/// Waits for the answer to a call, as the connection does; why there is none.
[[nodiscard]] std::optional<RemoteError> awaitAnswer(const BusConnection& bus, const QDBusPendingCall& call);

/// A property's value as it comes; the error also tells of another type than that.
[[nodiscard]] Result<QVariant> readOfType(QMetaType type, const BusConnection& bus, const QString& path,
                                          const QString& interface, const QString& name);

/// A property's value.
template <typename Value>
[[nodiscard]] Result<Value> read(const BusConnection& bus, const QString& path, const QString& interface,
                                 const QString& name)
{
    const auto value = readOfType(QMetaType::fromType<Value>(), bus, path, interface, name);
    if (!value.ok()) {
        return value.error();
    }
    return qdbus_cast<Value>(value.value());
}

/// Changes a property's value.
[[nodiscard]] std::optional<RemoteError> write(const BusConnection& bus, const QString& path,
                                               const QString& interface, const QString& name,
                                               const QVariant& value);

} // namespace aerolith
