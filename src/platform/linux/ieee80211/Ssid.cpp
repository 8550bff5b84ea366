#include "platform/linux/ieee80211/Ssid.h"

#include "platform/linux/ieee80211/Elements.h"

#include <QStringDecoder>

#include <algorithm>

namespace aerolith::ieee80211 {

namespace {

constexpr std::size_t longestSsid = 32;

bool isHidden(Bytes ssid)
{
    return std::all_of(ssid.begin(), ssid.end(), [](std::uint8_t byte) { return byte == 0; });
}

} // namespace

QByteArray ssidBytes(Bytes elements)
{
    const auto ssid = findElement(elements, ElementId::ssid);
    if (!ssid || ssid->size() > longestSsid || isHidden(*ssid)) {
        return {};
    }
    return byteArray(*ssid);
}

std::optional<QString> ssidText(const QByteArray& ssid)
{
    if (isHidden(bytesOf(ssid))) {
        return {};
    }
    // QString::fromUtf8 would drop a leading byte-order mark, which belongs to the name like any other
    // character.
    using Flag = QStringConverter::Flag;
    QStringDecoder decoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    return decoder.decode(ssid);
}

} // namespace aerolith::ieee80211
