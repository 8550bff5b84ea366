#include "platform/linux/nl80211/BssEntry.h"

#include "platform/linux/nl80211/Netlink.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/nl80211.h>

namespace aerolith::nl80211 {
namespace {

using test::attribute;
using test::numberAttribute;
using testing::HasSubstr;

QByteArray scanResult(const QByteArray& bss)
{
    return test::message(NL80211_CMD_NEW_SCAN_RESULTS, attribute(NL80211_ATTR_BSS | NLA_F_NESTED, bss));
}

std::string failure(const QByteArray& dump)
{
    const auto entries = decodeBssEntries(bytesOf(dump));
    return entries.ok() ? "none" : entries.error().description.toStdString();
}

TEST(BssEntry, PassesOverMessagesOfAnotherKind)
{
    const nlmsghdr nothing{NLMSG_HDRLEN, NLMSG_NOOP, NLM_F_MULTI, 1, 0};
    const QByteArray dump = scanResult(numberAttribute(NL80211_BSS_SIGNAL_UNSPEC, quint8{70})) +
                            test::message(NL80211_CMD_NEW_INTERFACE, attribute(1, "??")) +
                            test::numberBytes(nothing) + scanResult({});
    const auto entries = decodeBssEntries(bytesOf(dump));
    ASSERT_TRUE(entries.ok()) << entries.error().description.toStdString();
    ASSERT_EQ(entries.value().size(), 2);
    EXPECT_EQ(entries.value().first().signalQuality, 70);
}

TEST(BssEntry, SaysWhatIsWrongAndWhere)
{
    const QByteArray sound = scanResult(numberAttribute(NL80211_BSS_FREQUENCY, quint32{2412}));
    ASSERT_EQ(failure(sound), "none");
    const auto at = std::to_string(sound.size());
    QByteArray liar = numberAttribute(NL80211_BSS_SIGNAL_MBM, qint32{-5000}) +
                      numberAttribute(NL80211_BSS_FREQUENCY, quint32{2412});
    const auto claiming = [&liar](char size) { return liar.replace(8, 1, QByteArray(1, size)); };
    const std::pair<QByteArray, std::string> cases[] = {
        {sound + "abc", "message at byte " + at},
        {sound + sound.chopped(1), "message at byte " + at + " claims 32 bytes of the 31"},
        {test::messageClaiming(15, 0, {}), "claims 15 bytes"},
        {sound + test::messageClaiming(18, 0, {}), "no room for a command"},
        {scanResult(numberAttribute(NL80211_BSS_FREQUENCY, quint16{2412})),
         "attribute 2 of an access point's entry has 2 bytes instead of 4"},
        {scanResult(attribute(NL80211_BSS_BSSID, QByteArray(7, '\1'))), "7 bytes"},
        {scanResult(claiming(9)), "attribute 2 at byte 8 of an access point's entry claims 9 bytes of the 8"},
        {scanResult(claiming(3)), "claims 3 bytes"},
        {scanResult(claiming(3).first(12)), "claims 3 bytes of the 4"},
        {test::message(NL80211_CMD_NEW_SCAN_RESULTS, "ab"), "cut short"},
    };
    for (const auto& [dump, complaint] : cases) {
        EXPECT_THAT(failure(dump), HasSubstr(complaint));
    }
}

} // namespace
} // namespace aerolith::nl80211
