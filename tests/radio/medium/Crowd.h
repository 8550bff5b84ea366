#pragma once

#include <array>
#include <cstdint>
#include <iosfwd>
#include <span>
#include <vector>

namespace aerolith::medium {

using Bytes = std::span<const std::uint8_t>;
using Buffer = std::vector<std::uint8_t>;
using Address = std::array<std::uint8_t, 6>;

/// An access point that exists as its probe response only.
struct AccessPoint
{
    Address bssid{};
    std::uint32_t frequency = 0; // MHz
    int signal = 0;              // dBm, at whoever listens
    std::uint16_t capability = 0;
    Buffer elements; // the name first
};

/// One access point a line: address, frequency, signal, capability (hexadecimal) and elements (hexadecimal).
/// Ends the program with a message where a line is not so.
[[nodiscard]] std::vector<AccessPoint> readCrowd(std::istream& file);

/// Whether the frame is a probe request that this access point answers: one for any name, or for its own.
[[nodiscard]] bool answers(const AccessPoint& accessPoint, Bytes frame);

/// Its answer to a probe request.
[[nodiscard]] Buffer probeResponse(const AccessPoint& accessPoint, Bytes request);

} // namespace aerolith::medium
