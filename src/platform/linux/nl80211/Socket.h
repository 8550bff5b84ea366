#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <netlink/msg.h>
#include <netlink/socket.h>

#include <chrono>
#include <functional>
#include <memory>

namespace aerolith::nl80211 {

/// Frees a message of libnl.
struct FreeMessage
{
    void operator()(nl_msg* message) const { nlmsg_free(message); }
};

using OwnedMessage = std::unique_ptr<nl_msg, FreeMessage>;

/// A generic-netlink socket to the family "nl80211": the transport alone, what messages say is decoded
/// elsewhere. One thread at a time.
class Socket
{
public:
    using Deadline = std::chrono::steady_clock::time_point;

    /// How the kernel answered a request.
    struct Reply
    {
        /// The data messages, back to back.
        QByteArray messages;
        /// An errno, 0 on success.
        int errorNumber = 0;
        /// The list changed while it was being dumped.
        bool interrupted = false;
    };

    [[nodiscard]] static Result<std::shared_ptr<Socket>> open();

    /// A message to be filled with attributes. `flags` are those of a netlink request, NLM_F_DUMP or 0.
    [[nodiscard]] OwnedMessage newRequest(int command, int flags) const;

    /// Sends the request and receives the whole answer. An error where there was none in time.
    [[nodiscard]] Result<Reply> exchange(OwnedMessage request);

    /// From now on, receives what is sent to the group.
    [[nodiscard]] Failure subscribe(const char* group);

    /// Messages of the groups subscribed to that arrive together, each for itself; none when the deadline has
    /// passed.
    [[nodiscard]] Result<QList<QByteArray>> receive(Deadline deadline);

    /// Readable when there is something to receive.
    [[nodiscard]] int descriptor() const;

private:
    struct FreeSocket
    {
        void operator()(nl_sock* socket) const { nl_socket_free(socket); }
    };

    Socket() = default;

    std::unique_ptr<nl_sock, FreeSocket> m_socket;
    int m_family = 0;
};

} // namespace aerolith::nl80211
