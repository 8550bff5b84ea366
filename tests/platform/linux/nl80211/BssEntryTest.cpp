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
    EXPECT_FALSE(entries.value().first().signal);
}

TEST(BssEntry, FindsTheOneThatIsJoined)
{
    QByteArray dump;
    for (const quint32 status : {NL80211_BSS_STATUS_AUTHENTICATED, NL80211_BSS_STATUS_ASSOCIATED}) {
        dump += scanResult(numberAttribute(NL80211_BSS_STATUS, status));
    }
    const auto entries = decodeBssEntries(bytesOf(dump));
    ASSERT_TRUE(entries.ok());
    EXPECT_EQ(joinedEntry(entries.value()), &entries.value().last());
    EXPECT_EQ(joinedEntry(entries.value().first(1)), nullptr);
}

TEST(BssEntry, SaysWhatIsWrongAndWhere)
{
    const QByteArray sound = scanResult(numberAttribute(NL80211_BSS_FREQUENCY, quint32{2412}));
    ASSERT_EQ(failure(sound), "none");
    const auto at = std::to_string(sound.size());
    EXPECT_THAT(failure(sound + "abc"), HasSubstr("message at byte " + at));
    EXPECT_THAT(failure(sound + sound.chopped(1)),
                HasSubstr("message at byte " + at + " claims 32 bytes of the 31"));
    EXPECT_THAT(failure(test::messageClaiming(15, 0, {})), HasSubstr("claims 15 bytes"));
    EXPECT_THAT(failure(sound + test::messageClaiming(18, 0, {})), HasSubstr("no room for a command"));
    EXPECT_THAT(failure(scanResult(numberAttribute(NL80211_BSS_FREQUENCY, quint16{2412}))),
                HasSubstr("attribute 2 of an access point's entry has 2 bytes instead of 4"));
    EXPECT_THAT(failure(scanResult(attribute(NL80211_BSS_BSSID, QByteArray(7, '\1')))), HasSubstr("7 bytes"));

    QByteArray liar = numberAttribute(NL80211_BSS_SIGNAL_MBM, qint32{-5000}) +
                      numberAttribute(NL80211_BSS_FREQUENCY, quint32{2412});
    liar[8] = 9;
    EXPECT_THAT(failure(scanResult(liar)),
                HasSubstr("attribute 2 at byte 8 of an access point's entry claims 9 bytes of the 8"));
    liar[8] = 3;
    EXPECT_THAT(failure(scanResult(liar)), HasSubstr("claims 3 bytes"));
    EXPECT_THAT(failure(scanResult(liar.first(12))), HasSubstr("claims 3 bytes of the 4"));
    EXPECT_THAT(failure(test::message(NL80211_CMD_NEW_SCAN_RESULTS, "ab")), HasSubstr("cut short"));
}

} // namespace
} // namespace aerolith::nl80211
