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

QByteArray he(const char* body)
{
    return htOperation(5) + extensionElement(36, hex(body));
}

/// Beside an HE operation element that says 160 MHz.
QByteArray eht(const char* body)
{
    return he("00000200fcff2503070f00") + extensionElement(106, hex(body));
}

// The plain cases are among the captured ones.
TEST(ChannelWidth, IsWhatTheNewestOperationElementThatIsWholeSays)
{
    using enum CWChannelWidth;
    const QByteArray ht40 = htOperation(5);
    const std::pair<QByteArray, CWChannelWidth> cases[] = {
        {{}, mhz20},
        // 40 MHz needs a second half, above or below, that is in use.
        {htOperation(4), mhz20},
        {htOperation(6), mhz20},
        {htOperation(7), mhz40},
        {element(61, hex("2405")), mhz20},
        // Old and new ways to say 160 MHz.
        {ht40 + vhtOperation(0, 0, 0), mhz40},
        {ht40 + vhtOperation(1, 58, 50), mhz160},
        {ht40 + vhtOperation(1, 155, 42), mhz160},
        {ht40 + vhtOperation(1, 42, 46), mhz80},
        {ht40 + vhtOperation(2, 50, 0), mhz160},
        {ht40 + vhtOperation(3, 42, 155), mhz160},
        {ht40 + vhtOperation(9, 42, 50), mhz40},
        {htOperation(5, 50) + vhtOperation(1, 42, 0), mhz160},
        {htOperation(5, 155) + vhtOperation(1, 42, 0), mhz160},
        // Parameters (bit 14 VHT, bit 15 co-hosted, bit 17 6 GHz), colour, rates; then the optional fields.
        {he("00000000fcff"), mhz40},
        {he("00400000fcff012a00"), mhz80},
        {vhtOperation(0, 0, 0) + he("00400000fcff012a00"), mhz40}, // the VHT element itself comes first
        {he("00000200fcff2500070f00"), mhz20},
        {he("00c00200fcff012a0055250307000f"), mhz160},
        {he("00c00200fcff012a00552503070f"), mhz80}, // the 6 GHz field is cut short
        {he("00000200fc"), mhz40},
        // EHT wins where its information is whole and defined.
        {eht("0111111111041f3f"), unknown},
        {eht("0311111111022a000300"), mhz80},
        {eht("0011111111022a00"), mhz160},
        {eht("0111111111062a00"), mhz160},
        {eht("011111111102"), mhz160},
    };
    for (const auto& [frame, width] : cases) {
        const test::TightBytes tight(frame);
        EXPECT_EQ(channelWidth(tight.bytes()), width) << frame.toHex().constData();
    }
}

} // namespace
} // namespace aerolith::ieee80211
