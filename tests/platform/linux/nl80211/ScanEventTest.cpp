#include "platform/linux/nl80211/ScanEvent.h"

#include "platform/linux/nl80211/Netlink.h"

#include <gtest/gtest.h>
#include <linux/nl80211.h>

namespace aerolith::nl80211 {
namespace {

std::optional<ScanEvent> event(int command, const QByteArray& attributes)
{
    const auto decoded = decodeScanEvent(bytesOf(test::message(command, attributes)));
    EXPECT_TRUE(decoded.ok());
    return decoded.ok() ? decoded.value() : std::nullopt;
}

TEST(ScanEvent, TellsTheStageAndTheInterface)
{
    const QByteArray index = test::numberAttribute(NL80211_ATTR_IFINDEX, quint32{7});
    EXPECT_EQ(event(NL80211_CMD_TRIGGER_SCAN, index), (ScanEvent{7, ScanStage::started}));
    EXPECT_EQ(event(NL80211_CMD_NEW_SCAN_RESULTS, index), (ScanEvent{7, ScanStage::finished}));
    EXPECT_EQ(event(NL80211_CMD_SCAN_ABORTED, index), (ScanEvent{7, ScanStage::aborted}));
    EXPECT_EQ(event(NL80211_CMD_START_SCHED_SCAN, index), std::nullopt);
    EXPECT_EQ(event(NL80211_CMD_TRIGGER_SCAN, {}), std::nullopt);
}

TEST(ScanEvent, TellsTheNamesThatTheScanAsksFor)
{
    const QByteArray name("a\0b ", 4);
    const QByteArray attributes =
        test::numberAttribute(NL80211_ATTR_IFINDEX, quint32{7}) +
        test::attribute(NL80211_ATTR_SCAN_SSIDS, test::attribute(1, {}) + test::attribute(2, name));
    EXPECT_EQ(event(NL80211_CMD_NEW_SCAN_RESULTS, attributes),
              (ScanEvent{7, ScanStage::finished, {QByteArray(), name}}));
}

TEST(ScanEvent, IsRefusedWhenBroken)
{
    const QByteArray index = test::numberAttribute(NL80211_ATTR_IFINDEX, quint32{7});
    const QByteArray cutName =
        test::attribute(NL80211_ATTR_SCAN_SSIDS, test::attribute(1, "abcd").chopped(1));
    for (const QByteArray& broken : {QByteArray(), test::message(NL80211_CMD_TRIGGER_SCAN, index + cutName),
                                     test::message(NL80211_CMD_TRIGGER_SCAN, index.chopped(1)),
                                     test::message(NL80211_CMD_TRIGGER_SCAN, index).chopped(1)}) {
        EXPECT_FALSE(decodeScanEvent(bytesOf(broken)).ok()) << broken.toHex().constData();
    }
}

} // namespace
} // namespace aerolith::nl80211
