#include "model/NetworkRecord.h"

#include <array>
#include <cstddef>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

struct NamedCode
{
    int code;
    QLatin1StringView name;
};

/// In the order in which the names stand in a record's text.
constexpr std::array<NamedCode, 8> securityNames{{
    {1, "WEP"_L1},
    {2, "WPA"_L1},
    {3, "WPA Mixed"_L1},
    {4, "WPA2"_L1},
    {10, "Enterprise"_L1},
    {5, "Personal"_L1},
    {6, "Dynamic WEP"_L1},
    {11, "WPA3"_L1},
}};

constexpr std::array<NamedCode, 6> phyModeNames{{
    {1, "802.11a"_L1},
    {2, "802.11b"_L1},
    {3, "802.11g"_L1},
    {4, "802.11n"_L1},
    {5, "802.11ac"_L1},
    {6, "802.11ax"_L1},
}};

/// The names that a subset of a table stands for, bit i for the table's i-th entry.
template <std::size_t Count>
QStringList namesOf(const std::array<NamedCode, Count>& table, std::size_t subset)
{
    QStringList names;
    for (std::size_t i = 0; i < Count; ++i) {
        if ((subset >> i & 1U) != 0) {
            names.append(table.at(i).name);
        }
    }
    return names;
}

/// Every answer there is, made once: records of all access points then share their texts instead of each
/// building its own in every cycle.
template <std::size_t Count, typename Make>
auto everySubset(const std::array<NamedCode, Count>& table, Make make)
{
    std::array<decltype(make(QStringList())), std::size_t{1} << Count> answers;
    for (std::size_t subset = 0; subset < answers.size(); ++subset) {
        answers.at(subset) = make(namesOf(table, subset));
    }
    return answers;
}

template <std::size_t Count, typename Supports>
std::size_t subsetOf(const std::array<NamedCode, Count>& table, Supports supports)
{
    std::size_t subset = 0;
    for (std::size_t i = 0; i < Count; ++i) {
        subset |= static_cast<std::size_t>(supports(table[i].code)) << i;
    }
    return subset;
}

} // namespace

bool isAccepted(const CWNetwork& result)
{
    return result.bssid && result.ssid && *result.ssid != "Unknown"_L1 && !result.ssid->isEmpty();
}

QString securityDescription(const CWNetwork& result)
{
    static const auto texts = everySubset(securityNames, [](const QStringList& names) {
        return names.isEmpty() ? u"None"_s : names.join(u", "_s);
    });
    return texts.at(subsetOf(securityNames, [&](int code) { return result.supportsSecurity(code); }));
}

QStringList supportedPhyModes(const CWNetwork& result)
{
    static const auto lists = everySubset(phyModeNames, [](const QStringList& names) { return names; });
    return lists.at(subsetOf(phyModeNames, [&](int code) { return result.supportsPHYMode(code); }));
}

QString bandName(std::optional<qint64> channel)
{
    if (channel && *channel >= 1 && *channel <= 14) {
        return u"2.4 GHz"_s;
    }
    if (channel && *channel >= 36 && *channel <= 177) {
        return u"5 GHz"_s;
    }
    return u"Unknown"_s;
}

qint64 channelWidthMHz(int widthCode)
{
    switch (static_cast<CWChannelWidth>(widthCode)) {
    case CWChannelWidth::mhz20:
        return 20;
    case CWChannelWidth::mhz40:
        return 40;
    case CWChannelWidth::mhz80:
        return 80;
    case CWChannelWidth::mhz160:
        return 160;
    case CWChannelWidth::unknown:
        break;
    }
    return 0;
}

WiFiNetwork makeNetwork(const CWNetwork& result, TimePoint scanTime,
                        const std::optional<QString>& currentBSSID, const SignalHistoryList& history,
                        IdentifierSource& identifiers)
{
    const std::optional<CWChannel>& channel = result.wlanChannel;
    return {
        .id = identifiers.next(),
        .ssid = result.ssid.value_or(QString()),
        .ssidBytes = result.ssidData,
        .bssid = result.bssid.value_or(QString()),
        .rssi = result.rssiValue,
        .noise = recordNoise,
        .channel = channel ? channel->channelNumber : 0,
        .channelWidth = channel ? channelWidthMHz(channel->channelWidth) : 0,
        .channelBand = bandName(channel ? std::optional(channel->channelNumber) : std::nullopt),
        .security = securityDescription(result),
        .isCurrentNetwork = currentBSSID && currentBSSID == result.bssid,
        .countryCode = result.countryCode,
        .beaconInterval = result.beaconInterval,
        .isIBSS = result.ibss,
        .isPhyModeSupported = supportedPhyModes(result),
        .timestamp = scanTime,
        .signalHistory = history,
    };
}

} // namespace aerolith
