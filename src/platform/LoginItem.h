#pragma once

#include "platform/Result.h"

namespace aerolith {

/// The program's registration to start when the user logs in. It outlives the process and may be changed from
/// outside at any time; nothing here is a cached value. Main thread; blocks for a small file at most.
class LoginItem
{
public:
    LoginItem() = default;
    LoginItem(const LoginItem&) = delete;
    LoginItem& operator=(const LoginItem&) = delete;
    virtual ~LoginItem() = default;

    /// Whether the program will start; false when that cannot be told.
    [[nodiscard]] virtual bool isEnabled() const = 0;

    /// Registers or unregisters. The error says why the registration is as it was before.
    [[nodiscard]] virtual Failure setEnabled(bool enabled) = 0;
};

} // namespace aerolith
