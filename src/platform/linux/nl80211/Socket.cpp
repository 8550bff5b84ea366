#include "platform/linux/nl80211/Socket.h"

#include <netlink/errno.h>
#include <netlink/genl/ctrl.h>
#include <netlink/genl/genl.h>
#include <netlink/handlers.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>

using namespace Qt::StringLiterals;

namespace aerolith::nl80211 {

namespace {

constexpr std::chrono::seconds longestAnswer{5};
// A dump is handed over in pieces as large as the buffer that receives them. The socket's queue holds the
// events of a burst; the kernel keeps both within its limits.
constexpr std::size_t messageBufferSize = std::size_t{64} * 1024;
constexpr int socketBufferSize = 1024 * 1024;

Error libraryError(QLatin1StringView what, int code)
{
    return {u"%1: %2"_s.arg(what, QString::fromLocal8Bit(nl_geterror(code)))};
}

struct FreeCallbacks
{
    void operator()(nl_cb* callbacks) const { nl_cb_put(callbacks); }
};

using Callbacks = std::unique_ptr<nl_cb, FreeCallbacks>;

Callbacks makeCallbacks()
{
    Callbacks callbacks(nl_cb_alloc(NL_CB_DEFAULT));
    Q_CHECK_PTR(callbacks.get());
    return callbacks;
}

/// Whether something can be received before the deadline.
bool waitForInput(nl_sock* socket, Socket::Deadline deadline)
{
    pollfd descriptor{nl_socket_get_fd(socket), POLLIN, 0};
    for (;;) {
        using std::chrono::milliseconds;
        const auto left = std::chrono::ceil<milliseconds>(deadline - std::chrono::steady_clock::now());
        // A long wait is made of shorter ones, as poll() counts in an int.
        const auto slice = std::clamp(left, milliseconds{0}, milliseconds{60'000});
        const int ready = poll(&descriptor, 1, static_cast<int>(slice.count()));
        if (ready > 0) {
            return true;
        }
        if (left <= slice && !(ready < 0 && errno == EINTR)) {
            return false;
        }
    }
}

struct Exchange
{
    Socket::Reply reply;
    bool done = false;
};

int onMessage(nl_msg* message, void* exchange)
{
    const nlmsghdr* header = nlmsg_hdr(message);
    QByteArray& messages = static_cast<Exchange*>(exchange)->reply.messages;
    messages.append(reinterpret_cast<const char*>(header), static_cast<qsizetype>(header->nlmsg_len));
    messages.append(NLMSG_ALIGN(header->nlmsg_len) - header->nlmsg_len, '\0');
    return NL_OK;
}

/// The end of a dump. Its message carries an error number where the dump failed.
int onFinish(nl_msg* message, void* exchange)
{
    auto* current = static_cast<Exchange*>(exchange);
    int outcome = 0;
    if (nlmsg_datalen(nlmsg_hdr(message)) >= static_cast<int>(sizeof outcome)) {
        std::memcpy(&outcome, nlmsg_data(nlmsg_hdr(message)), sizeof outcome);
    }
    current->reply.errorNumber = -outcome;
    current->done = true;
    return NL_STOP;
}

int onAcknowledgement(nl_msg* /*message*/, void* exchange)
{
    static_cast<Exchange*>(exchange)->done = true;
    return NL_STOP;
}

int onInterruption(nl_msg* /*message*/, void* exchange)
{
    static_cast<Exchange*>(exchange)->reply.interrupted = true;
    return NL_OK;
}

int onRefusal(sockaddr_nl* /*sender*/, nlmsgerr* refusal, void* exchange)
{
    auto* current = static_cast<Exchange*>(exchange);
    current->reply.errorNumber = -refusal->error;
    current->done = true;
    return NL_STOP;
}

int onEvent(nl_msg* message, void* events)
{
    const nlmsghdr* header = nlmsg_hdr(message);
    static_cast<QList<QByteArray>*>(events)->append(
        QByteArray(reinterpret_cast<const char*>(header), static_cast<qsizetype>(header->nlmsg_len)));
    return NL_OK;
}

} // namespace

Result<std::shared_ptr<Socket>> Socket::open()
{
    std::shared_ptr<Socket> opened(new Socket);
    opened->m_socket.reset(nl_socket_alloc());
    nl_sock* socket = opened->m_socket.get();
    Q_CHECK_PTR(socket);
    if (const int code = genl_connect(socket); code < 0) {
        return libraryError("The kernel's network configuration cannot be reached"_L1, code);
    }
    nl_socket_set_buffer_size(socket, socketBufferSize, 0);
    nl_socket_set_msg_buf_size(socket, messageBufferSize);
    opened->m_family = genl_ctrl_resolve(socket, "nl80211");
    if (opened->m_family < 0) {
        return libraryError("The kernel has no Wi-Fi"_L1, opened->m_family);
    }
    nl_socket_set_nonblocking(socket);
    return opened;
}

OwnedMessage Socket::newRequest(int command, int flags) const
{
    OwnedMessage message(nlmsg_alloc());
    Q_CHECK_PTR(message.get());
    genlmsg_put(message.get(), NL_AUTO_PORT, NL_AUTO_SEQ, m_family, 0, flags,
                static_cast<std::uint8_t>(command), 0);
    return message;
}

Result<Socket::Reply> Socket::exchange(OwnedMessage request)
{
    if (const int code = nl_send_auto(m_socket.get(), request.get()); code < 0) {
        return libraryError("The kernel cannot be asked"_L1, code);
    }
    Exchange current;
    const Callbacks callbacks = makeCallbacks();
    nl_cb_set(callbacks.get(), NL_CB_VALID, NL_CB_CUSTOM, onMessage, &current);
    nl_cb_set(callbacks.get(), NL_CB_FINISH, NL_CB_CUSTOM, onFinish, &current);
    nl_cb_set(callbacks.get(), NL_CB_ACK, NL_CB_CUSTOM, onAcknowledgement, &current);
    nl_cb_set(callbacks.get(), NL_CB_DUMP_INTR, NL_CB_CUSTOM, onInterruption, &current);
    nl_cb_err(callbacks.get(), NL_CB_CUSTOM, onRefusal, &current);
    const Deadline deadline = std::chrono::steady_clock::now() + longestAnswer;
    while (!current.done) {
        if (!waitForInput(m_socket.get(), deadline)) {
            return Error{u"The kernel did not answer in time"_s};
        }
        const int code = nl_recvmsgs(m_socket.get(), callbacks.get());
        if (!current.done && code < 0 && code != -NLE_AGAIN) {
            return libraryError("The kernel's answer was lost"_L1, code);
        }
    }
    return current.reply;
}

Failure Socket::subscribe(const char* group)
{
    const int number = genl_ctrl_resolve_grp(m_socket.get(), "nl80211", group);
    const int code = number < 0 ? number : nl_socket_add_membership(m_socket.get(), number);
    if (code < 0) {
        return libraryError("The kernel's Wi-Fi events cannot be received"_L1, code);
    }
    // Events answer no request.
    nl_socket_disable_seq_check(m_socket.get());
    return {};
}

Result<QList<QByteArray>> Socket::receive(Deadline deadline)
{
    QList<QByteArray> events;
    const Callbacks callbacks = makeCallbacks();
    nl_cb_set(callbacks.get(), NL_CB_VALID, NL_CB_CUSTOM, onEvent, &events);
    nl_cb_set(
        callbacks.get(), NL_CB_SEQ_CHECK, NL_CB_CUSTOM, [](nl_msg*, void*) -> int { return NL_OK; }, nullptr);
    while (events.isEmpty() && waitForInput(m_socket.get(), deadline)) {
        const int code = nl_recvmsgs(m_socket.get(), callbacks.get());
        if (code < 0 && code != -NLE_AGAIN) {
            return libraryError("Wi-Fi events were lost"_L1, code);
        }
    }
    return events;
}

int Socket::descriptor() const
{
    return nl_socket_get_fd(m_socket.get());
}

} // namespace aerolith::nl80211
