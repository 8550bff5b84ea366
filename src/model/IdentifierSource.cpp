#include "model/IdentifierSource.h"

#include <cstdint>

namespace aerolith {

QUuid IdentifierSource::next()
{
    // RFC 4122, section 4.4: all bits random but for the version (4) and the variant (binary 10).
    const std::uint64_t high = (m_generator.generate() & ~0xf000ULL) | 0x4000ULL;
    const std::uint64_t low = (m_generator.generate() >> 2) | 1ULL << 63;
    const auto byte = [low](int index) { return static_cast<uchar>(low >> (56 - 8 * index)); };
    return {static_cast<uint>(high >> 32),
            static_cast<ushort>(high >> 16),
            static_cast<ushort>(high),
            byte(0),
            byte(1),
            byte(2),
            byte(3),
            byte(4),
            byte(5),
            byte(6),
            byte(7)};
}

} // namespace aerolith
