#include "platform/linux/nl80211/SupportedChannels.h"

#include "platform/linux/ieee80211/Frequency.h"
#include "platform/linux/nl80211/Attributes.h"
#include "platform/linux/nl80211/Messages.h"

#include <linux/nl80211.h>

#include <map>

using namespace Qt::StringLiterals;

namespace aerolith::nl80211 {

namespace {

/// What a radio can do in one band.
struct Abilities
{
    bool mhz40 = false;
    bool mhz80 = false;
    bool mhz160 = false;
};

struct Channel
{
    std::uint32_t frequency = 0;
    bool disabled = false;
    bool no20 = false;
    bool no40Below = false;
    bool no40Above = false;
    bool no80 = false;
    bool no160 = false;
};

/// A band as told so far: a split dump takes several messages for it.
struct BandInfo
{
    Abilities abilities;
    QList<Channel> channels;
};

Failure readChannelAttribute(const Attribute& attribute, Channel& channel)
{
    switch (attribute.type) {
    case NL80211_FREQUENCY_ATTR_FREQ:
        return readValue(attribute, channel.frequency);
    case NL80211_FREQUENCY_ATTR_DISABLED:
        channel.disabled = true;
        return {};
    case NL80211_FREQUENCY_ATTR_NO_20MHZ:
        channel.no20 = true;
        return {};
    case NL80211_FREQUENCY_ATTR_NO_HT40_MINUS:
        channel.no40Below = true;
        return {};
    case NL80211_FREQUENCY_ATTR_NO_HT40_PLUS:
        channel.no40Above = true;
        return {};
    case NL80211_FREQUENCY_ATTR_NO_80MHZ:
        channel.no80 = true;
        return {};
    case NL80211_FREQUENCY_ATTR_NO_160MHZ:
        channel.no160 = true;
        return {};
    default:
        return {};
    }
}

Failure readHtCapability(const Attribute& attribute, Abilities& abilities)
{
    constexpr std::uint16_t canUse40 = 1 << 1;
    std::uint16_t capability = 0;
    Failure failure = readValue(attribute, capability);
    abilities.mhz40 = abilities.mhz40 || (capability & canUse40) != 0;
    return failure;
}

Failure readVhtCapability(const Attribute& attribute, int band, Abilities& abilities)
{
    constexpr std::uint32_t canUse160 = 3 << 2;
    std::uint32_t capability = 0;
    Failure failure = readValue(attribute, capability);
    // Some radios have VHT rates at 2.4 GHz, where no channel is that wide.
    if (!failure && band != NL80211_BAND_2GHZ) {
        abilities.mhz80 = true;
        abilities.mhz160 = abilities.mhz160 || (capability & canUse160) != 0;
    }
    return failure;
}

/// The first byte of an HE PHY capability, all there is to tell the widths at 6 GHz.
void readHeCapability(Bytes capability, int band, Abilities& abilities)
{
    if (capability.empty()) {
        return;
    }
    const int widths = capability[0];
    if (band == NL80211_BAND_2GHZ) {
        abilities.mhz40 = abilities.mhz40 || (widths & 1 << 1) != 0;
        return;
    }
    abilities.mhz40 = abilities.mhz40 || (widths & 1 << 2) != 0;
    abilities.mhz80 = abilities.mhz80 || (widths & 1 << 2) != 0;
    abilities.mhz160 = abilities.mhz160 || (widths & 1 << 3) != 0;
}

/// One item per kind of interface.
Failure readHeCapabilities(const Attribute& list, int band, Abilities& abilities)
{
    return visitAttributes(list.payload, "a band's abilities"_L1, [band, &abilities](const Attribute& item) {
        return visitAttributes(item.payload, "a band's abilities"_L1, [&](const Attribute& part) -> Failure {
            if (part.type == NL80211_BAND_IFTYPE_ATTR_HE_CAP_PHY) {
                readHeCapability(part.payload, band, abilities);
            }
            return {};
        });
    });
}

Failure readChannels(const Attribute& list, QList<Channel>& channels)
{
    return visitAttributes(list.payload, "a band's channels"_L1, [&channels](const Attribute& item) {
        Channel& channel = channels.emplaceBack();
        return visitAttributes(item.payload, "a channel"_L1, [&channel](const Attribute& part) {
            return readChannelAttribute(part, channel);
        });
    });
}

Failure readBandAttribute(const Attribute& attribute, int band, BandInfo& info)
{
    switch (attribute.type) {
    case NL80211_BAND_ATTR_FREQS:
        return readChannels(attribute, info.channels);
    case NL80211_BAND_ATTR_HT_CAPA:
        return readHtCapability(attribute, info.abilities);
    case NL80211_BAND_ATTR_VHT_CAPA:
        return readVhtCapability(attribute, band, info.abilities);
    case NL80211_BAND_ATTR_IFTYPE_DATA:
        return readHeCapabilities(attribute, band, info.abilities);
    default:
        return {};
    }
}

void appendWidths(const Channel& channel, const Abilities& abilities, QList<CWChannel>& channels)
{
    const auto number = ieee80211::channelNumber(channel.frequency);
    if (!number || channel.disabled) {
        return;
    }
    const auto append = [&channels, number](CWChannelWidth width, bool allowed) {
        if (allowed) {
            channels.append(CWChannel{*number, static_cast<int>(width)});
        }
    };
    append(CWChannelWidth::mhz20, !channel.no20);
    append(CWChannelWidth::mhz40, abilities.mhz40 && !(channel.no40Below && channel.no40Above));
    append(CWChannelWidth::mhz80, abilities.mhz80 && !channel.no80);
    append(CWChannelWidth::mhz160, abilities.mhz160 && !channel.no160);
}

} // namespace

Result<QList<CWChannel>> decodeSupportedChannels(Bytes dump)
{
    std::map<int, BandInfo> bands;
    const auto visit = [&bands](const Attribute& attribute) -> Failure {
        if (attribute.type != NL80211_ATTR_WIPHY_BANDS) {
            return {};
        }
        return visitAttributes(attribute.payload, "the bands of a radio"_L1, [&bands](const Attribute& band) {
            BandInfo& info = bands[band.type];
            return visitAttributes(band.payload, "a band"_L1, [&band, &info](const Attribute& part) {
                return readBandAttribute(part, band.type, info);
            });
        });
    };
    if (Failure failure = visitMessages(
            dump, NL80211_CMD_NEW_WIPHY, "a radio"_L1, [] {}, visit)) {
        return *failure;
    }
    QList<CWChannel> channels;
    for (const auto& [number, band] : bands) {
        for (const Channel& channel : band.channels) {
            appendWidths(channel, band.abilities, channels);
        }
    }
    return channels;
}

} // namespace aerolith::nl80211
