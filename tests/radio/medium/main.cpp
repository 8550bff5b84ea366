// radio-medium FILE: the air between mac80211_hwsim's radios, in user space. Every frame that a radio sends
// comes here, and nothing reaches it but the probe responses of the made-up access points in FILE. Tells
// "ready" and runs until it is ended.

#include "Crowd.h"

#include <netlink/genl/ctrl.h>
#include <netlink/genl/genl.h>
#include <netlink/handlers.h>
#include <netlink/netlink.h>

#include <fstream>
#include <iostream>
#include <memory>

namespace {

using namespace aerolith::medium;

// The driver's messages and attributes, by drivers/net/wireless/mac80211_hwsim.h, which is not installed.
enum Command : std::uint8_t
{
    registerMedium = 1,
    frameCommand = 2,
    frameSent = 3
};

enum Attribute : int
{
    receiver = 1,
    transmitter = 2,
    frameBytes = 3,
    flags = 4,
    receiveRate = 5,
    signalStrength = 6,
    rateInfo = 7,
    cookie = 8,
    frequency = 19,
    lastAttribute = 40
};

constexpr std::uint32_t wasAcknowledged = 4;

constexpr int socketBufferSize = 8 * 1024 * 1024;

struct FreeMessage
{
    void operator()(nl_msg* message) const { nlmsg_free(message); }
};

using Message = std::unique_ptr<nl_msg, FreeMessage>;

struct Medium
{
    nl_sock* socket = nullptr;
    int family = 0;
    std::vector<AccessPoint> crowd;
};

Message makeMessage(const Medium& medium, Command command, std::size_t size)
{
    Message message(nlmsg_alloc_size(size));
    genlmsg_put(message.get(), NL_AUTO_PORT, NL_AUTO_SEQ, medium.family, 0, 0, command, 1);
    return message;
}

Bytes bytesOf(const nlattr* attribute)
{
    return {static_cast<const std::uint8_t*>(nla_data(attribute)),
            static_cast<std::size_t>(nla_len(attribute))};
}

void put(nl_msg* message, Attribute attribute, Bytes bytes)
{
    nla_put(message, attribute, static_cast<int>(bytes.size()), bytes.data());
}

void deliver(const Medium& medium, Bytes radio, const AccessPoint& from, Bytes frame)
{
    const Message message = makeMessage(medium, frameCommand, frame.size() + 256);
    put(message.get(), receiver, radio);
    put(message.get(), frameBytes, frame);
    nla_put_u32(message.get(), receiveRate, 0);
    nla_put_u32(message.get(), signalStrength, static_cast<std::uint32_t>(from.signal));
    nla_put_u32(message.get(), frequency, from.frequency);
    nl_send_auto(medium.socket, message.get());
}

/// What becomes of a frame that has been sent; the driver keeps each until it is told. Nobody is there to
/// acknowledge one.
void report(const Medium& medium, nlattr* const* sent)
{
    const Message message = makeMessage(medium, frameSent, 512);
    put(message.get(), transmitter, bytesOf(sent[transmitter]));
    nla_put_u32(message.get(), flags, nla_get_u32(sent[flags]) & ~wasAcknowledged);
    nla_put_u32(message.get(), signalStrength, 0);
    put(message.get(), rateInfo, bytesOf(sent[rateInfo]));
    nla_put_u64(message.get(), cookie, nla_get_u64(sent[cookie]));
    nl_send_auto(medium.socket, message.get());
}

int onMessage(nl_msg* message, void* argument)
{
    const Medium& medium = *static_cast<const Medium*>(argument);
    nlmsghdr* header = nlmsg_hdr(message);
    nlattr* sent[lastAttribute + 1]{};
    if (static_cast<const genlmsghdr*>(nlmsg_data(header))->cmd != frameCommand ||
        genlmsg_parse(header, 0, sent, lastAttribute, nullptr) < 0) {
        return NL_OK;
    }
    for (const int needed : {transmitter, frameBytes, flags, rateInfo, cookie, frequency}) {
        if (!sent[needed]) {
            return NL_OK;
        }
    }
    report(medium, sent);
    const Bytes frame = bytesOf(sent[frameBytes]);
    for (const AccessPoint& accessPoint : medium.crowd) {
        if (accessPoint.frequency == nla_get_u32(sent[frequency]) && answers(accessPoint, frame)) {
            deliver(medium, bytesOf(sent[transmitter]), accessPoint, probeResponse(accessPoint, frame));
        }
    }
    return NL_OK;
}

/// The driver refuses a frame for a radio that has left the channel meanwhile.
int onError(sockaddr_nl*, nlmsgerr*, void*)
{
    return NL_SKIP;
}

} // namespace

int main(int argc, char** argv)
{
    std::ifstream file(argc == 2 ? argv[1] : "");
    if (!file) {
        std::cerr << "usage: radio-medium FILE\n";
        return 2;
    }
    Medium medium{nl_socket_alloc(), 0, readCrowd(file)};
    if (genl_connect(medium.socket) < 0 ||
        (medium.family = genl_ctrl_resolve(medium.socket, "MAC80211_HWSIM")) < 0) {
        std::cerr << "mac80211_hwsim is not loaded\n";
        return 1;
    }
    nl_socket_set_buffer_size(medium.socket, socketBufferSize, socketBufferSize);
    nl_socket_disable_seq_check(medium.socket);
    nl_socket_disable_auto_ack(medium.socket);
    nl_socket_modify_cb(medium.socket, NL_CB_VALID, NL_CB_CUSTOM, onMessage, &medium);
    nl_socket_modify_err_cb(medium.socket, NL_CB_CUSTOM, onError, nullptr);
    nl_send_auto(medium.socket, makeMessage(medium, registerMedium, 256).get());
    std::cout << "ready: " << medium.crowd.size() << " access points" << std::endl;
    for (;;) {
        nl_recvmsgs_default(medium.socket);
    }
}
