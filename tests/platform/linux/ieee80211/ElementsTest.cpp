#include "platform/linux/ieee80211/Elements.h"

#include "platform/linux/ieee80211/Country.h"
#include "platform/linux/ieee80211/Frame.h"
#include "platform/linux/ieee80211/Ssid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace aerolith::ieee80211 {
namespace {

using test::element;
using test::extensionElement;
using test::hex;
using testing::ElementsAre;
using testing::Optional;

TEST(Elements, PassesOverWhatIsTooShortAndTakesTheNextOfItsKind)
{
    const QByteArray frame = element(61, hex("06")) + element(61, hex("0605")) + element(61, hex("0707"));
    EXPECT_THAT(findElement(bytesOf(frame), ElementId::htOperation, 2), Optional(ElementsAre(6, 5)));
    EXPECT_FALSE(findElement(bytesOf(frame), ElementId::htOperation, 3));
}

TEST(Elements, EndsWhereAnElementClaimsMoreThanThereIs)
{
    const QByteArray sound = element(1, hex("82"));
    for (const QByteArray& tail : {hex("30"), hex("3001"), hex("3006aabbccddee")}) {
        const test::TightBytes frame(sound + tail);
        EXPECT_TRUE(findElement(frame.bytes(), ElementId::supportedRates));
        EXPECT_FALSE(findElement(frame.bytes(), ElementId::rsn)) << tail.toHex().constData();
    }
}

TEST(Elements, TellsExtensionsAndVendorTypesApart)
{
    const QByteArray frame = element(255, {}) + extensionElement(36, hex("0102")) +
                             extensionElement(35, hex("03")) + element(221, hex("0050f2")) +
                             element(221, hex("0050f20201")) + element(221, hex("0050f201"));
    EXPECT_THAT(findElement(bytesOf(frame), ExtensionId::heCapabilities, 1), Optional(ElementsAre(3)));
    EXPECT_FALSE(findElement(bytesOf(frame), ExtensionId::heOperation, 3));
    EXPECT_THAT(findElement(bytesOf(frame), VendorType{0, 0x50, 0xf2, 1}), Optional(ElementsAre()));
    EXPECT_THAT(findElement(bytesOf(frame), VendorType{0, 0x50, 0xf2, 2}), Optional(ElementsAre(1)));
}

TEST(Ssid, IsHiddenWithoutAByteThatSaysSomething)
{
    for (const QByteArray& frame : {QByteArray(), element(0, {}), element(0, QByteArray(32, '\0')),
                                    element(0, QByteArray(33, 'a')), hex("0004616263")}) {
        const QByteArray ssid = ssidBytes(bytesOf(frame));
        EXPECT_EQ(ssid, QByteArray()) << frame.toHex().constData();
        EXPECT_EQ(ssidText(ssid), std::nullopt);
    }
    EXPECT_EQ(ssidBytes(bytesOf(element(0, QByteArray(32, 'a')))), QByteArray(32, 'a'));
}

TEST(Ssid, ShowsEveryByteThatIsNotUtf8AndKeepsTheRestVerbatim)
{
    EXPECT_EQ(ssidText(hex("fffe80c328a0")), QStringLiteral("\uFFFD\uFFFD\uFFFD\uFFFD(\uFFFD"));
    EXPECT_EQ(ssidText(hex("41e282")), QStringLiteral("A\uFFFD\uFFFD"));
    EXPECT_EQ(ssidText(hex("efbbbf41")), QStringLiteral("\uFEFFA"));
    EXPECT_EQ(ssidText(hex("0041")), QString::fromLatin1("\0A", 2));
}

TEST(Country, IsTwoLettersOrAbsent)
{
    EXPECT_EQ(countryLetters(bytesOf(element(7, "PA \x01\x0d\x14"))), QStringLiteral("PA"));
    for (const QByteArray& body :
         {QByteArray("PA"), hex("000020"), QByteArray("P1 "), hex("c3a920"), QByteArray()}) {
        EXPECT_FALSE(countryLetters(bytesOf(element(7, body)))) << body.toHex().constData();
    }
}

} // namespace
} // namespace aerolith::ieee80211
