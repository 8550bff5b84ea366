#include "Crowd.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>

namespace aerolith::medium {

namespace {

constexpr std::uint8_t probeRequestType = 0x40;
constexpr std::uint8_t probeResponseType = 0x50;
constexpr std::size_t headerSize = 24;
constexpr std::size_t senderAt = 10;
constexpr std::uint16_t beaconInterval = 100; // units of 1,024 microseconds

Buffer fromHex(const std::string& text)
{
    Buffer bytes;
    for (std::size_t at = 0; at + 1 < text.size(); at += 2) {
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(text.substr(at, 2), nullptr, 16)));
    }
    return bytes;
}

Address toAddress(std::string text)
{
    std::erase(text, ':');
    const Buffer bytes = fromHex(text);
    Address address{};
    std::copy_n(bytes.begin(), std::min(bytes.size(), address.size()), address.begin());
    return address;
}

/// The element that both kinds of frame and the made-up elements begin with.
Bytes name(Bytes elements)
{
    const bool whole = elements.size() >= 2 && elements[0] == 0 && elements.size() - 2 >= elements[1];
    return whole ? elements.subspan(2, elements[1]) : Bytes{};
}

void append(Buffer& frame, Bytes bytes)
{
    // GCC 12 sees an overflow in insert() where it optimises.
    std::ranges::copy(bytes, std::back_inserter(frame));
}

void append16(Buffer& frame, std::uint16_t number)
{
    frame.push_back(static_cast<std::uint8_t>(number & 0xff));
    frame.push_back(static_cast<std::uint8_t>(number >> 8));
}

} // namespace

std::vector<AccessPoint> readCrowd(std::istream& file)
{
    std::vector<AccessPoint> crowd;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        AccessPoint accessPoint;
        std::string address;
        std::string elements;
        words >> address >> accessPoint.frequency >> accessPoint.signal >> std::hex >>
            accessPoint.capability >> elements;
        if (!words) {
            std::cerr << "not an access point: " << line << '\n';
            std::exit(2);
        }
        accessPoint.bssid = toAddress(address);
        accessPoint.elements = fromHex(elements);
        crowd.push_back(std::move(accessPoint));
    }
    return crowd;
}

bool answers(const AccessPoint& accessPoint, Bytes frame)
{
    if (frame.size() < headerSize || frame[0] != probeRequestType) {
        return false;
    }
    const Bytes asked = name(frame.subspan(headerSize));
    return asked.empty() || std::ranges::equal(asked, name(accessPoint.elements));
}

Buffer probeResponse(const AccessPoint& accessPoint, Bytes request)
{
    constexpr std::array<std::uint8_t, 2> noDuration{};
    constexpr std::array<std::uint8_t, 8> clock{1}; // not 0, which means that there is none
    Buffer frame{probeResponseType, 0};
    append(frame, noDuration);
    append(frame, request.subspan(senderAt, 6));
    append(frame, accessPoint.bssid);
    append(frame, accessPoint.bssid);
    append16(frame, 0); // sequence
    append(frame, clock);
    append16(frame, beaconInterval);
    append16(frame, accessPoint.capability);
    append(frame, accessPoint.elements);
    return frame;
}

} // namespace aerolith::medium
