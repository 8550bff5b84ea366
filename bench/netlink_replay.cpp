// Preloaded into `iw`, this stands in for the kernel's Wi-Fi: whatever `iw` asks, the answer is the dump in
// the file that NETLINK_REPLAY names, handed over in pieces as a kernel does. Everything above the socket is
// `iw`'s own.

#include <linux/genetlink.h>
#include <linux/netlink.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/socket.h>
#include <sys/uio.h>

struct nl_sock;

namespace {

constexpr std::size_t kernelPiece = std::size_t{32} * 1024;

struct Replay
{
    std::string dump;
    std::size_t sent = 0;
};

Replay& replay()
{
    static Replay current;
    return current;
}

/// The whole messages from `begin` on that a piece of this size has room for.
std::size_t pieceSize(const std::string& dump, std::size_t begin, std::size_t room)
{
    std::size_t end = begin;
    while (end < dump.size()) {
        nlmsghdr header;
        std::memcpy(&header, dump.data() + end, sizeof header);
        const std::size_t next = end + NLMSG_ALIGN(header.nlmsg_len);
        if (next - begin > room) {
            break;
        }
        end = next;
    }
    return end - begin;
}

/// The file's dump as the answer to this request, with the message that ends it.
std::string answerTo(const nlmsghdr& request)
{
    const char* path = std::getenv("NETLINK_REPLAY"); // NOLINT(concurrency-mt-unsafe): iw has one thread
    std::ifstream file(path ? path : "", std::ios::binary);
    std::string dump{std::istreambuf_iterator<char>(file), {}};
    const nlmsghdr done{NLMSG_LENGTH(sizeof(int)), NLMSG_DONE, NLM_F_MULTI, 0, 0};
    dump.append(reinterpret_cast<const char*>(&done), sizeof done).append(sizeof(int), '\0');
    for (std::size_t at = 0; at < dump.size();) {
        nlmsghdr header;
        std::memcpy(&header, dump.data() + at, sizeof header);
        header.nlmsg_seq = request.nlmsg_seq;
        header.nlmsg_pid = request.nlmsg_pid;
        std::memcpy(dump.data() + at, &header, sizeof header);
        at += NLMSG_ALIGN(header.nlmsg_len);
    }
    return dump;
}

} // namespace

extern "C" {

unsigned int if_nametoindex(const char* /*name*/)
{
    return 1;
}

int genl_ctrl_resolve(nl_sock* /*socket*/, const char* /*family*/)
{
    return NLMSG_MIN_TYPE + 16;
}

ssize_t sendmsg(int /*descriptor*/, const msghdr* message, int /*flags*/)
{
    nlmsghdr request;
    std::memcpy(&request, message->msg_iov->iov_base, sizeof request);
    replay() = {answerTo(request)};
    return static_cast<ssize_t>(message->msg_iov->iov_len);
}

ssize_t recvmsg(int /*descriptor*/, msghdr* message, int flags)
{
    Replay& current = replay();
    const std::size_t piece = pieceSize(current.dump, current.sent, kernelPiece);
    const std::size_t copied = std::min(piece, message->msg_iov->iov_len);
    std::memcpy(message->msg_iov->iov_base, current.dump.data() + current.sent, copied);
    sockaddr_nl sender{};
    sender.nl_family = AF_NETLINK;
    std::memcpy(message->msg_name, &sender, sizeof sender);
    message->msg_namelen = sizeof sender;
    message->msg_controllen = 0;
    message->msg_flags = copied < piece ? MSG_TRUNC : 0;
    if ((flags & MSG_PEEK) == 0) {
        current.sent += piece;
    }
    return static_cast<ssize_t>((flags & MSG_TRUNC) != 0 ? piece : copied);
}
}
