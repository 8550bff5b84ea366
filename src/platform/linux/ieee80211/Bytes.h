#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <span>

namespace aerolith {

/// Foreign bytes that someone else owns: valid for as long as the buffer they lie in.
using Bytes = std::span<const std::uint8_t>;

inline Bytes bytesOf(const QByteArray& array)
{
    return {reinterpret_cast<const std::uint8_t*>(array.constData()), static_cast<std::size_t>(array.size())};
}

inline QByteArray byteArray(Bytes bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

/// Number of two bytes, least significant first, as frames carry it. The bytes must hold `at` + 2 bytes.
inline std::uint16_t littleEndian16(Bytes bytes, std::size_t at)
{
    return static_cast<std::uint16_t>(bytes[at] | bytes[at + 1] << 8);
}

} // namespace aerolith
