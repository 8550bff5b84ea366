#include "platform/linux/nl80211/Attributes.h"

#include <linux/netlink.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace aerolith::nl80211 {

Bytes afterPadding(Bytes bytes, std::size_t size)
{
    constexpr std::size_t alignment = NLA_ALIGNTO;
    static_assert(alignment == NLMSG_ALIGNTO);
    const std::size_t padded = (size + alignment - 1) / alignment * alignment;
    return bytes.subspan(std::min(bytes.size(), padded));
}

Result<Attribute> takeAttribute(Bytes& rest, std::size_t taken, QLatin1StringView owner)
{
    nlattr header;
    if (rest.size() < sizeof header) {
        return Error{u"%1 is cut short within an attribute's header at byte %2"_s.arg(owner).arg(taken)};
    }
    std::memcpy(&header, rest.data(), sizeof header);
    const int type = header.nla_type & NLA_TYPE_MASK;
    if (header.nla_len < sizeof header || header.nla_len > rest.size()) {
        return Error{u"attribute %1 at byte %2 of %3 claims %4 bytes of the %5 that are left"_s.arg(type)
                         .arg(taken)
                         .arg(owner)
                         .arg(header.nla_len)
                         .arg(rest.size())};
    }
    const Bytes payload = rest.subspan(sizeof header, header.nla_len - sizeof header);
    rest = afterPadding(rest, header.nla_len);
    return Attribute{type, payload, owner};
}

Failure checkSize(const Attribute& attribute, std::size_t expected)
{
    if (attribute.payload.size() == expected) {
        return {};
    }
    return Error{u"attribute %1 of %2 has %3 bytes instead of %4"_s.arg(attribute.type)
                     .arg(attribute.owner)
                     .arg(attribute.payload.size())
                     .arg(expected)};
}

} // namespace aerolith::nl80211
