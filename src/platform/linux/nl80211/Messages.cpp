#include "platform/linux/nl80211/Messages.h"

#include <linux/genetlink.h>
#include <linux/netlink.h>

#include <cstring>

using namespace Qt::StringLiterals;

namespace aerolith::nl80211 {

Result<std::optional<Message>> takeMessage(Bytes& rest, std::size_t taken)
{
    nlmsghdr header;
    if (rest.size() < sizeof header) {
        return Error{u"the message at byte %1 is cut short within its header"_s.arg(taken)};
    }
    std::memcpy(&header, rest.data(), sizeof header);
    if (header.nlmsg_len < sizeof header || header.nlmsg_len > rest.size()) {
        return Error{u"the message at byte %1 claims %2 bytes of the %3 that are left"_s.arg(taken)
                         .arg(header.nlmsg_len)
                         .arg(rest.size())};
    }
    const Bytes content = rest.subspan(NLMSG_HDRLEN, header.nlmsg_len - NLMSG_HDRLEN);
    rest = afterPadding(rest, header.nlmsg_len);
    if (header.nlmsg_type < NLMSG_MIN_TYPE) {
        return std::optional<Message>();
    }
    genlmsghdr generic;
    if (content.size() < sizeof generic) {
        return Error{u"the message at byte %1 has no room for a command"_s.arg(taken)};
    }
    std::memcpy(&generic, content.data(), sizeof generic);
    return std::optional(Message{generic.cmd, content.subspan(GENL_HDRLEN)});
}

} // namespace aerolith::nl80211
