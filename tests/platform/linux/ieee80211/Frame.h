#pragma once

#include "platform/linux/ieee80211/Bytes.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

namespace aerolith::test {

inline QByteArray hex(const char* digits)
{
    return QByteArray::fromHex(digits);
}

inline QByteArray element(int id, const QByteArray& body)
{
    return QByteArray().append(static_cast<char>(id)).append(static_cast<char>(body.size())).append(body);
}

inline QByteArray extensionElement(int extension, const QByteArray& body)
{
    return element(255, QByteArray().append(static_cast<char>(extension)).append(body));
}

/// Bytes in a buffer of exactly their size, so that a sanitizer sees the first read beyond them.
class TightBytes
{
public:
    explicit TightBytes(const QByteArray& bytes) : m_bytes(bytes.begin(), bytes.end()) {}

    [[nodiscard]] Bytes bytes() const { return m_bytes; }

private:
    std::vector<std::uint8_t> m_bytes;
};

} // namespace aerolith::test
