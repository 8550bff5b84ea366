#pragma once

#include "platform/Result.h"
#include "platform/linux/networkmanager/BusConnection.h"
#include "platform/linux/networkmanager/NetworkManager.h"
#include "platform/linux/networkmanager/RemoteError.h"

#include <optional>

namespace aerolith {

/// One call to an object of NetworkManager, through the proxy of one of its interfaces; ends within the
/// connection's limit. One per call: a proxy keeps the error of an earlier call after a later one that
/// succeeded.
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

    /// Only after a property was read or written.
    [[nodiscard]] std::optional<RemoteError> failure() const
    {
        const auto error = m_proxy.lastError();
        return error.isValid() ? std::optional(remoteError(error)) : std::nullopt;
    }

private:
    Proxy m_proxy;
};

/// A property's value.
template <typename Value, typename Proxy>
[[nodiscard]] Result<Value> read(const BusConnection& bus, const QString& path,
                                 Value (Proxy::*getter)() const)
{
    Call<Proxy> call(bus, path);
    auto value = (call.proxy().*getter)();
    if (const auto failure = call.failure()) {
        return failure->error();
    }
    return value;
}

} // namespace aerolith
