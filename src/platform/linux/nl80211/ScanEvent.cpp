#include "platform/linux/nl80211/ScanEvent.h"

#include "platform/linux/nl80211/Attributes.h"
#include "platform/linux/nl80211/Messages.h"

#include <linux/nl80211.h>

using namespace Qt::StringLiterals;

namespace aerolith::nl80211 {

namespace {

std::optional<ScanStage> stageOf(int command)
{
    switch (command) {
    case NL80211_CMD_TRIGGER_SCAN:
        return ScanStage::started;
    case NL80211_CMD_NEW_SCAN_RESULTS:
        return ScanStage::finished;
    case NL80211_CMD_SCAN_ABORTED:
        return ScanStage::aborted;
    default:
        return {};
    }
}

} // namespace

Result<std::optional<ScanEvent>> decodeScanEvent(Bytes message)
{
    Bytes rest = message;
    const auto taken = takeMessage(rest, 0);
    if (!taken.ok()) {
        return taken.error();
    }
    const auto stage = taken.value() ? stageOf(taken.value()->command) : std::nullopt;
    if (!stage) {
        return std::optional<ScanEvent>();
    }
    std::optional<std::uint32_t> interfaceIndex;
    QList<QByteArray> ssids;
    const auto visit = [&](const Attribute& attribute) -> Failure {
        switch (attribute.type) {
        case NL80211_ATTR_IFINDEX:
            return readValue(attribute, interfaceIndex);
        case NL80211_ATTR_SCAN_SSIDS:
            return visitAttributes(attribute.payload, "the names of a scan"_L1, [&](const Attribute& ssid) {
                ssids.append(byteArray(ssid.payload));
                return Failure();
            });
        default:
            return {};
        }
    };
    if (Failure failure = visitAttributes(taken.value()->attributes, "a scan event"_L1, visit)) {
        return *failure;
    }
    // A scan by a device without a network interface (P2P) has no index.
    return interfaceIndex ? std::optional(ScanEvent{*interfaceIndex, *stage, ssids}) : std::nullopt;
}

} // namespace aerolith::nl80211
