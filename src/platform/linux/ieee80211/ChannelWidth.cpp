#include "platform/linux/ieee80211/ChannelWidth.h"

#include "platform/linux/ieee80211/Elements.h"

#include <cstdlib>
#include <optional>

namespace aerolith::ieee80211 {

namespace {

using Width = std::optional<CWChannelWidth>;

/// The body from byte `at`, or nothing of it where it is shorter.
Bytes tail(Bytes body, std::size_t at)
{
    return body.size() < at ? Bytes{} : body.subspan(at);
}

/// Width by the HT operation element. A 40 MHz channel has its second half below or above, and is in use only
/// while the access point lets stations transmit at any width.
Width htWidth(Bytes elements)
{
    const auto operation = findElement(elements, ElementId::htOperation, 22);
    if (!operation) {
        return {};
    }
    const int secondaryOffset = (*operation)[1] & 3;
    const bool anyWidth = ((*operation)[1] & 4) != 0;
    const bool wide = anyWidth && (secondaryOffset == 1 || secondaryOffset == 3);
    return wide ? CWChannelWidth::mhz40 : CWChannelWidth::mhz20;
}

/// Where an access point cannot use all its antennas at 160 MHz, the second segment's centre stands in the HT
/// operation element and the VHT operation element has 0.
int secondSegmentInHt(Bytes elements)
{
    const auto operation = findElement(elements, ElementId::htOperation, 22);
    return operation ? (littleEndian16(*operation, 2) >> 5) & 0xff : 0;
}

/// Width by three bytes that the VHT operation element begins with and the HE operation element may repeat:
/// width, and the channel numbers of the centres of segment 0 and 1. Width 0 leaves it to HT.
///
/// Width 1 means 80 MHz, and since 802.11-2016 also 160 MHz, segment 1 being the centre of the whole, or
/// 80+80 MHz, segment 1 being the centre of the other 80 MHz; 2 and 3 were their names before.
Width vhtWidth(Bytes operation, Bytes elements)
{
    const int segment0 = operation[1];
    const int segment1 = operation[2] != 0 ? operation[2] : secondSegmentInHt(elements);
    const int distance = segment1 == 0 ? 0 : std::abs(segment1 - segment0);
    switch (operation[0]) {
    case 1:
        return distance == 8 || distance > 16 ? CWChannelWidth::mhz160 : CWChannelWidth::mhz80;
    case 2:
    case 3:
        return CWChannelWidth::mhz160;
    default:
        return {};
    }
}

/// The fields of the HE operation element that say something of the width; empty where it has none of it.
struct HeOperation
{
    Bytes vht;
    Bytes ghz6;
};

HeOperation heOperation(Bytes elements)
{
    const auto operation = findElement(elements, ExtensionId::heOperation, 6);
    if (!operation) {
        return {};
    }
    const int parameters = littleEndian16(*operation, 0) | (*operation)[2] << 16;
    const bool hasVht = (parameters & 1 << 14) != 0;
    const bool hasCohostedIndicator = (parameters & 1 << 15) != 0;
    const bool hasGhz6 = (parameters & 1 << 17) != 0;
    HeOperation found;
    Bytes rest = operation->subspan(6);
    if (hasVht) {
        found.vht = rest.size() < 3 ? Bytes{} : rest.first(3);
        rest = tail(rest, 3);
    }
    if (hasCohostedIndicator) {
        rest = tail(rest, 1);
    }
    if (hasGhz6) {
        found.ghz6 = rest.size() < 5 ? Bytes{} : rest.first(5);
    }
    return found;
}

CWChannelWidth byCode(int code)
{
    switch (code) {
    case 0:
        return CWChannelWidth::mhz20;
    case 1:
        return CWChannelWidth::mhz40;
    case 2:
        return CWChannelWidth::mhz80;
    case 3:
        return CWChannelWidth::mhz160;
    default:
        return CWChannelWidth::unknown;
    }
}

/// Width by the EHT operation element, where it has the optional information; the codes 5 to 7 mean nothing
/// yet.
Width ehtWidth(Bytes elements)
{
    const auto operation = findElement(elements, ExtensionId::ehtOperation, 5);
    if (!operation || ((*operation)[0] & 1) == 0 || operation->size() < 8) {
        return {};
    }
    const int code = (*operation)[5] & 7;
    return code <= 4 ? Width(byCode(code)) : Width();
}

} // namespace

CWChannelWidth channelWidth(Bytes elements)
{
    if (const Width width = ehtWidth(elements)) {
        return *width;
    }
    const HeOperation he = heOperation(elements);
    if (!he.ghz6.empty()) {
        return byCode(he.ghz6[1] & 3);
    }
    const auto vht = findElement(elements, ElementId::vhtOperation, 5);
    const Bytes wide = vht ? vht->first(3) : he.vht;
    if (const Width width = wide.empty() ? Width() : vhtWidth(wide, elements)) {
        return *width;
    }
    return htWidth(elements).value_or(CWChannelWidth::mhz20);
}

} // namespace aerolith::ieee80211
