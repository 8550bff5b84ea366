#include "platform/linux/ieee80211/Security.h"

#include "platform/linux/ieee80211/Frame.h"

#include <gtest/gtest.h>

namespace aerolith::ieee80211 {
namespace {

using test::element;
using test::hex;

constexpr std::uint16_t open = 0x0401;
constexpr std::uint16_t privacy = 0x0411;

/// RSN with CCMP, these suites and capabilities.
QByteArray rsn(std::initializer_list<int> suites, int capabilities = 0)
{
    QByteArray body = hex("0100000fac040100000fac04");
    body.append(char(suites.size())).append('\0');
    for (const int suite : suites) {
        body.append(hex("000fac")).append(char(suite));
    }
    return element(48, body.append(char(capabilities)).append('\0'));
}

QByteArray wpa(int suite)
{
    return element(221, hex("0050f20101000050f20201000050f20201000050f2").append(char(suite)));
}

/// The codes as text, in ascending order.
std::string codes(const QByteArray& frame, std::uint16_t capability = privacy)
{
    const test::TightBytes tight(frame);
    const CodeSet found = securityCodes(tight.bytes(), capability);
    std::string text;
    for (int code = 0; code < 64; ++code) {
        if (found.contains(code)) {
            text += (text.empty() ? "" : " ") + std::to_string(code);
        }
    }
    return text;
}

TEST(Security, FollowsTheKeyManagementOfBothElements)
{
    EXPECT_EQ(codes({}, open), "0");
    EXPECT_EQ(codes(element(221, hex("506f9a1c")), open), "0") << "announces an OWE network beside it";
    for (const int suite : {8, 9, 24, 25}) {
        EXPECT_EQ(codes(rsn({suite})), "5 11") << suite;
    }
    const std::pair<QByteArray, std::string> cases[] = {
        {rsn({18}), "14"}, // encrypted all the same
        {rsn({2, 4, 6}, 0xc0), "4 5"},
        {rsn({9, 6, 2, 8, 4}), "4 5 11 13"},
        {wpa(2) + rsn({8}), "2 5 11"}, // no method in common
        {rsn({3, 1}, 0xc0), "9 10"},
        {rsn({1, 5}, 0x80), "9 10"},
        {rsn({5}, 0xc0), "10 12"}, // management frames must be protected
        {rsn({12}, 0xc0), "10 12"},
        {wpa(1) + rsn({1}), "7 8 9 10"},
        {wpa(1) + rsn({2}), "4 5 7 10"},
        // An element that ends early means the default.
        {element(48, hex("0100")), "9 10"},
        {element(48, hex("0100000fac04")), "9 10"},
        {element(48, hex("0100000fac040100000fac04")), "9 10"},
        {element(221, hex("0050f2010100")), "7 10"},
    };
    for (const auto& [frame, expected] : cases) {
        EXPECT_EQ(codes(frame), expected) << frame.toHex().constData();
    }
}

TEST(Security, OfABrokenElementIsWhatCanBeRead)
{
    EXPECT_EQ(codes(element(48, hex("0100000fac040100000fac040900000fac02000fac08"))), "4 5 11 13")
        << "fewer suites than claimed";
    for (const char* body :
         {"", "01", "0200000fac040100000fac040100000fac02", "0100000f", "0100000fac0401",
          "0100000fac04ffff000fac04000fac02", "0100000fac040100000fac0401",
          "0100000fac040100000fac0401000050f202", "0100000fac040100000fac040100000facff"}) {
        EXPECT_EQ(codes(element(48, hex(body))), "") << body;
        EXPECT_EQ(codes(element(48, hex(body)) + wpa(2)), "2 5") << body;
    }
}

} // namespace
} // namespace aerolith::ieee80211
