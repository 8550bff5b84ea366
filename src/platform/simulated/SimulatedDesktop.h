#pragma once

#include "platform/HostAddresses.h"
#include "platform/LoginItem.h"

namespace aerolith {

/// A registration that is forgotten with the process: a simulated run leaves the user's login alone.
class SimulatedLoginItem : public LoginItem
{
public:
    [[nodiscard]] bool isEnabled() const override { return m_enabled; }

    [[nodiscard]] Failure setEnabled(bool enabled) override
    {
        m_enabled = enabled;
        return {};
    }

private:
    bool m_enabled = false;
};

/// Nothing gives a simulated interface an address, and the real machine's are none of its business.
class SimulatedHostAddresses : public HostAddresses
{
public:
    [[nodiscard]] std::optional<QString> localIPv4Address() const override { return {}; }
};

} // namespace aerolith
