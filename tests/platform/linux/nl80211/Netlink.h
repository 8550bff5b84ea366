#pragma once

#include <QByteArray>

#include <linux/genetlink.h>
#include <linux/netlink.h>

namespace aerolith::test {

template <typename Number>
QByteArray numberBytes(Number number)
{
    return {reinterpret_cast<const char*>(&number), sizeof number};
}

inline QByteArray padded(QByteArray bytes)
{
    return bytes.append((NLA_ALIGNTO - bytes.size() % NLA_ALIGNTO) % NLA_ALIGNTO, '\0');
}

inline QByteArray attribute(int type, const QByteArray& payload)
{
    const nlattr header{static_cast<quint16>(NLA_HDRLEN + payload.size()), static_cast<quint16>(type)};
    return padded(numberBytes(header) + payload);
}

template <typename Number>
QByteArray numberAttribute(int type, Number number)
{
    return attribute(type, numberBytes(number));
}

/// The message after its length, so that a test can lie about that.
inline QByteArray messageClaiming(qsizetype size, int command, const QByteArray& attributes)
{
    const nlmsghdr header{static_cast<quint32>(size), NLMSG_MIN_TYPE + 5, NLM_F_MULTI, 1, 0};
    const genlmsghdr generic{static_cast<quint8>(command), 1, 0};
    return numberBytes(header) + numberBytes(generic) + attributes;
}

inline QByteArray message(int command, const QByteArray& attributes)
{
    return messageClaiming(NLMSG_HDRLEN + GENL_HDRLEN + attributes.size(), command, attributes);
}

} // namespace aerolith::test
