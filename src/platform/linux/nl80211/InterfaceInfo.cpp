#include "platform/linux/nl80211/InterfaceInfo.h"

#include "platform/linux/nl80211/Attributes.h"
#include "platform/linux/nl80211/Messages.h"

#include <linux/nl80211.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace aerolith::nl80211 {

namespace {

/// A text that ends at its first zero byte.
QString text(Bytes payload)
{
    const auto end = std::find(payload.begin(), payload.end(), 0);
    return QString::fromUtf8(byteArray({payload.begin(), end}));
}

Failure readInterfaceAttribute(const Attribute& attribute, InterfaceInfo& interface)
{
    switch (attribute.type) {
    case NL80211_ATTR_IFINDEX:
        return readValue(attribute, interface.index);
    case NL80211_ATTR_IFNAME:
        interface.name = text(attribute.payload);
        return {};
    case NL80211_ATTR_MAC:
        return readValue(attribute, interface.address);
    case NL80211_ATTR_WIPHY:
        return readValue(attribute, interface.radio);
    case NL80211_ATTR_IFTYPE:
        return readValue(attribute, interface.type);
    case NL80211_ATTR_SSID:
        interface.ssid = byteArray(attribute.payload);
        return {};
    case NL80211_ATTR_WIPHY_TX_POWER_LEVEL:
        return readValue(attribute, interface.transmitPower);
    default:
        return {};
    }
}

} // namespace

Result<QList<InterfaceInfo>> decodeInterfaces(Bytes dump)
{
    QList<InterfaceInfo> interfaces;
    const auto begin = [&interfaces] { interfaces.emplaceBack(); };
    const auto visit = [&interfaces](const Attribute& attribute) {
        return readInterfaceAttribute(attribute, interfaces.last());
    };
    if (Failure failure = visitMessages(dump, NL80211_CMD_NEW_INTERFACE, "an interface"_L1, begin, visit)) {
        return *failure;
    }
    return interfaces;
}

qint64 milliwatts(std::int32_t hundredthsOfDbm)
{
    // No radio sends with more than this; the kernel's "no limit" and a broken driver's number end here too.
    constexpr std::int32_t highest = 10'000;
    return std::llround(std::pow(10.0, std::min(hundredthsOfDbm, highest) / 1000.0));
}

} // namespace aerolith::nl80211
