#include "Require.h"
#include "platform/linux/ieee80211/ChannelWidth.h"
#include "platform/linux/ieee80211/Country.h"
#include "platform/linux/ieee80211/PhyModes.h"
#include "platform/linux/ieee80211/Security.h"
#include "platform/linux/ieee80211/Ssid.h"

using namespace aerolith;

/// The input is the elements of a beacon as they come from the air.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Bytes elements(data, size);
    const QByteArray ssid = ieee80211::ssidBytes(elements);
    require(ssid.size() <= 32);
    require(ieee80211::ssidText(ssid).has_value() == !ssid.isEmpty());
    require(ieee80211::countryLetters(elements).value_or(QStringLiteral("AA")).size() == 2);
    const int width = static_cast<int>(ieee80211::channelWidth(elements));
    require(width >= 0 && width <= 4);

    const CodeSet open = ieee80211::securityCodes(elements, 0);
    require(open.bits() >> 15 == 0);
    require(!open.contains(0) || open.bits() == 1);
    for (const auto band : {ieee80211::Band::ghz2_4, ieee80211::Band::ghz5, ieee80211::Band::ghz6}) {
        require(ieee80211::phyModes(elements, band).bits() >> 7 == 0);
    }
    return 0;
}
