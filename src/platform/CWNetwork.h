#pragma once

#include "platform/CWChannel.h"

#include <QByteArray>
#include <QString>

#include <bitset>
#include <optional>

namespace aerolith {

/// The platform's security codes. Several may hold for one access point.
enum class CWSecurity
{
    none = 0,
    wep = 1,
    wpaPersonal = 2,
    wpaPersonalMixed = 3,
    wpa2Personal = 4,
    personal = 5,
    dynamicWEP = 6,
    wpaEnterprise = 7,
    wpaEnterpriseMixed = 8,
    wpa2Enterprise = 9,
    enterprise = 10,
    wpa3Personal = 11,
    wpa3Enterprise = 12,
    wpa3Transition = 13,
    owe = 14,
};

/// The platform's PHY-mode codes.
enum class CWPHYMode
{
    dot11a = 1,
    dot11b = 2,
    dot11g = 3,
    dot11n = 4,
    dot11ac = 5,
    dot11ax = 6
};

/// The codes for which a question is answered with yes. Codes outside 0 to 63 are never in the set.
class CodeSet
{
public:
    static constexpr int size = 64;

    void insert(int code)
    {
        if (isCode(code)) {
            m_codes.set(static_cast<std::size_t>(code));
        }
    }

    [[nodiscard]] bool contains(int code) const
    {
        return isCode(code) && m_codes.test(static_cast<std::size_t>(code));
    }

    /// The set as a number, bit n for code n.
    [[nodiscard]] quint64 bits() const { return m_codes.to_ullong(); }

    friend bool operator==(const CodeSet&, const CodeSet&) = default;

private:
    static bool isCode(int code) { return code >= 0 && code < size; }

    std::bitset<size> m_codes;
};

/// One access point as one scan heard it: a plain value, the answer to every question about the result.
struct CWNetwork
{
    /// The access point's hardware address in lower-case hexadecimal with colons; absent when withheld.
    std::optional<QString> bssid;
    /// The network name for display; absent when withheld or hidden. Bytes that are not UTF-8 stand as
    /// U+FFFD.
    std::optional<QString> ssid;
    /// The network name as sent, 0 to 32 bytes; what a join or a directed scan needs. Empty when withheld.
    QByteArray ssidData;
    /// dBm.
    qint64 rssiValue = 0;
    /// Absent when the result carries no channel.
    std::optional<CWChannel> wlanChannel;
    /// Two letters; absent when the access point sends none.
    std::optional<QString> countryCode;
    /// In units of 1024 microseconds.
    qint64 beaconInterval = 0;
    bool ibss = false;
    CodeSet securityCodes;
    CodeSet phyModeCodes;

    [[nodiscard]] bool supportsSecurity(int code) const { return securityCodes.contains(code); }

    [[nodiscard]] bool supportsSecurity(CWSecurity code) const
    {
        return supportsSecurity(static_cast<int>(code));
    }

    [[nodiscard]] bool supportsPHYMode(int code) const { return phyModeCodes.contains(code); }

    friend bool operator==(const CWNetwork&, const CWNetwork&) = default;
};

} // namespace aerolith
