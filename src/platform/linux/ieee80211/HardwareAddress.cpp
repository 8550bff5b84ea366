#include "platform/linux/ieee80211/HardwareAddress.h"

#include "platform/linux/ieee80211/Bytes.h"

namespace aerolith::ieee80211 {

QString addressText(const HardwareAddress& address)
{
    return QString::fromLatin1(byteArray(address).toHex(':'));
}

} // namespace aerolith::ieee80211
