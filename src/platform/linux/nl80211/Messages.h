#pragma once

#include "platform/Result.h"
#include "platform/linux/nl80211/Attributes.h"

#include <QLatin1StringView>

namespace aerolith::nl80211 {

/// One message of the kernel's Wi-Fi configuration family.
struct Message
{
    /// An nl80211_commands.
    int command;
    Bytes attributes;
};

/// Takes the first netlink message off `rest`, the bytes of messages back to back; absent for one that only
/// controls the transfer. `taken` is how many bytes lie before `rest`. An error where the message is cut
/// short.
[[nodiscard]] Result<std::optional<Message>> takeMessage(Bytes& rest, std::size_t taken);

/// Shows each of the attributes of the messages with this command to `visit`, as visitAttributes() does, and
/// calls `begin` before the first of each message.
template <typename Begin, typename Visit>
[[nodiscard]] Failure visitMessages(Bytes messages, int command, QLatin1StringView owner, Begin begin,
                                    Visit visit)
{
    for (Bytes rest = messages; !rest.empty();) {
        const Result<std::optional<Message>> message = takeMessage(rest, messages.size() - rest.size());
        if (!message.ok()) {
            return message.error();
        }
        if (!message.value() || message.value()->command != command) {
            continue;
        }
        begin();
        if (Failure failure = visitAttributes(message.value()->attributes, owner, visit)) {
            return failure;
        }
    }
    return {};
}

} // namespace aerolith::nl80211
