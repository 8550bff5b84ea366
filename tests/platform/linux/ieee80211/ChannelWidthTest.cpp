#include "platform/linux/ieee80211/ChannelWidth.h"

#include "platform/linux/ieee80211/Frame.h"

#include <gtest/gtest.h>

namespace aerolith::ieee80211 {
namespace {

using test::element;
using test::extensionElement;
using test::hex;

/// Secondary channel offset and "any width" as in an HT operation element's second byte; `segment1` is the
/// centre of a second segment that it names.
QByteArray htOperation(int secondByte, int segment1 = 0)
{
    QByteArray body(22, '\0');
    body[0] = 36;
    body[1] = static_cast<char>(secondByte);
    body[2] = static_cast<char>((segment1 << 5) & 0xff);
    body[3] = static_cast<char>((segment1 << 5) >> 8);
    return element(61, body);
}

QByteArray vhtOperation(int width, int segment0, int segment1)
{
    return element(192, QByteArray().append(char(width)).append(char(segment0)).append(char(segment1)) +
                            hex("fcff"));
}

CWChannelWidth width(const QByteArray& frame)
{
    const test::TightBytes tight(frame);
    return channelWidth(tight.bytes());
}

const QByteArray ht40 = htOperation(5);

TEST(ChannelWidth, OfHtNeedsASecondHalfInUse)
{
    EXPECT_EQ(width({}), CWChannelWidth::mhz20);
    for (const int narrow : {0, 1, 4, 6}) {
        EXPECT_EQ(width(htOperation(narrow)), CWChannelWidth::mhz20) << narrow;
    }
    EXPECT_EQ(width(htOperation(5)), CWChannelWidth::mhz40);
    EXPECT_EQ(width(htOperation(7)), CWChannelWidth::mhz40);
    EXPECT_EQ(width(element(61, hex("2405"))), CWChannelWidth::mhz20);
}

TEST(ChannelWidth, OfVhtReadsOldAndNewWaysToSay160)
{
    EXPECT_EQ(width(ht40 + vhtOperation(0, 0, 0)), CWChannelWidth::mhz40);
    EXPECT_EQ(width(ht40 + vhtOperation(1, 42, 0)), CWChannelWidth::mhz80);
    EXPECT_EQ(width(ht40 + vhtOperation(1, 42, 50)), CWChannelWidth::mhz160);
    EXPECT_EQ(width(ht40 + vhtOperation(1, 58, 50)), CWChannelWidth::mhz160);
    EXPECT_EQ(width(ht40 + vhtOperation(1, 155, 42)), CWChannelWidth::mhz160);
    EXPECT_EQ(width(ht40 + vhtOperation(1, 42, 46)), CWChannelWidth::mhz80);
    EXPECT_EQ(width(ht40 + vhtOperation(2, 50, 0)), CWChannelWidth::mhz160);
    EXPECT_EQ(width(ht40 + vhtOperation(3, 42, 155)), CWChannelWidth::mhz160);
    EXPECT_EQ(width(ht40 + vhtOperation(9, 42, 50)), CWChannelWidth::mhz40);
    EXPECT_EQ(width(htOperation(5, 50) + vhtOperation(1, 42, 0)), CWChannelWidth::mhz160);
    EXPECT_EQ(width(htOperation(5, 155) + vhtOperation(1, 42, 0)), CWChannelWidth::mhz160);
}

TEST(ChannelWidth, OfHeIsBehindItsOtherOptionalFields)
{
    // Parameters (bit 14 VHT, bit 15 co-hosted, bit 17 6 GHz), colour, rates; then the fields.
    const auto he = [](const char* body) { return width(ht40 + extensionElement(36, hex(body))); };
    EXPECT_EQ(he("00000000fcff"), CWChannelWidth::mhz40);
    EXPECT_EQ(he("00400000fcff012a00"), CWChannelWidth::mhz80);
    EXPECT_EQ(he("00000200fcff2500070f00"), CWChannelWidth::mhz20);
    EXPECT_EQ(he("00000200fcff2502070000"), CWChannelWidth::mhz80);
    EXPECT_EQ(he("00c00200fcff012a0055250307000f"), CWChannelWidth::mhz160);
    EXPECT_EQ(he("00c00200fcff012a00552503070f"), CWChannelWidth::mhz80) << "the 6 GHz field is cut short";
    EXPECT_EQ(he("00000200fc"), CWChannelWidth::mhz40) << "the element is cut short";
    EXPECT_EQ(width(vhtOperation(0, 0, 0) + extensionElement(36, hex("00400000fcff012a00"))),
              CWChannelWidth::mhz20)
        << "the VHT operation element itself comes first";
}

TEST(ChannelWidth, OfEhtWinsAndIsUnknownBeyond160)
{
    const QByteArray he160 = extensionElement(36, hex("00000200fcff2503070f00"));
    const auto eht = [&he160](const char* body) { return width(he160 + extensionElement(106, hex(body))); };
    EXPECT_EQ(eht("0111111111041f3f"), CWChannelWidth::unknown);
    EXPECT_EQ(eht("0311111111022a000300"), CWChannelWidth::mhz80);
    EXPECT_EQ(eht("0011111111022a00"), CWChannelWidth::mhz160) << "without operation information";
    EXPECT_EQ(eht("0111111111062a00"), CWChannelWidth::mhz160) << "a width not yet defined";
    EXPECT_EQ(eht("011111111102"), CWChannelWidth::mhz160) << "cut short";
}

} // namespace
} // namespace aerolith::ieee80211
