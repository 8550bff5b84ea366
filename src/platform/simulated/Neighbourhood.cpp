#include "platform/simulated/Neighbourhood.h"

#include <array>
#include <cstdlib>
#include <initializer_list>
#include <vector>

using namespace Qt::StringLiterals;

namespace aerolith {

namespace {

constexpr int cycleCount = 48;
/// dBm; what arrives weaker is not heard.
constexpr int receiverFloor = -92;

enum class Protection
{
    open,
    enhancedOpen,
    wep,
    dynamicWEP,
    wpa,
    wpaMixed,
    wpa2,
    wpa2And3,
    wpa3,
    wpaEnterprise,
    wpaMixedEnterprise,
    wpa2Enterprise,
    wpa3Enterprise,
};

enum class Generation
{
    legacy,
    n,
    ac,
    ax
};

/// One radio of an access point.
struct Station
{
    int channel = 0;
    CWChannelWidth width = CWChannelWidth::mhz20;
    /// dBm, about which the signal drifts.
    int level = 0;
    /// dB to either side of the level.
    int drift = 0;
};

/// The radios that one owner runs under one name.
struct Owner
{
    /// Null: a hidden name.
    QString ssid;
    Protection protection = Protection::open;
    Generation generation = Generation::legacy;
    /// Null: not sent.
    QString country;
    std::vector<Station> stations;
};

/// The user's own network stands first.
std::vector<Owner> owners()
{
    using enum Protection;
    using enum Generation;
    using enum CWChannelWidth;
    return {
        {u"Willow Cottage"_s, wpa2And3, ax, u"GB"_s, {{36, mhz80, -47, 4}, {6, mhz20, -41, 3}}},
        {u"Okafor Family"_s, wpa2, ac, u"GB"_s, {{44, mhz80, -66, 5}, {1, mhz20, -58, 5}}},
        {u"Flat 3B"_s, wpaMixed, n, u"GB"_s, {{11, mhz40, -63, 6}}},
        {u"Flat 3B guests"_s, open, n, u"GB"_s, {{11, mhz40, -64, 6}}},
        {u"Zoë & Max"_s, wpa3, ax, u"GB"_s, {{100, mhz160, -71, 6}, {1, mhz20, -62, 4}}},
        {QString(), wpa2, ac, u"GB"_s, {{149, mhz80, -74, 5}}},
        {u"Corner Bakery Free Wi-Fi"_s, open, ac, QString(), {{6, mhz20, -76, 8}, {40, mhz40, -84, 8}}},
        {u"Corner Bakery Till"_s, wpa2, n, QString(), {{6, mhz20, -77, 8}}},
        {u"Café Lumière"_s, enhancedOpen, ax, u"FR"_s, {{112, mhz80, -82, 9}, {13, mhz20, -75, 7}}},
        {u"東京の家"_s, wpa2, ac, u"JP"_s, {{48, mhz80, -80, 7}}},
        {u"workshop-scale"_s, wep, legacy, QString(), {{3, mhz20, -79, 4}}},
        {u"Old Laser Printer"_s, wpa, legacy, QString(), {{9, mhz20, -83, 6}}},
        {u"Dental Practice"_s, wpa2Enterprise, ac, u"GB"_s, {{52, mhz40, -78, 4}, {11, mhz20, -72, 4}}},
        {u"Riverside School"_s,
         wpa3Enterprise,
         ax,
         u"GB"_s,
         {{60, mhz40, -81, 7}, {116, mhz40, -88, 7}, {1, mhz20, -79, 6}}},
        {u"Riverside School Staff"_s, wpaMixedEnterprise, n, u"GB"_s, {{1, mhz20, -80, 6}}},
        {u"Depot Scanners"_s, dynamicWEP, legacy, u"US"_s, {{7, mhz20, -87, 9}}},
        {u"Depot Office"_s, wpaEnterprise, n, u"US"_s, {{157, mhz40, -86, 9}}},
        {u"Tram 14 On Board"_s, open, ac, u"DE"_s, {{161, mhz20, -100, 38}}},
        {u"Mira’s phone"_s, wpa2And3, ax, QString(), {{6, mhz20, -97, 46}}},
        {u"Attic 🐈"_s, wpa2, ax, u"GB"_s, {{11, mhz20, -88, 7}, {36, mhz160, -92, 6}}},
        {u"Büro 3. OG"_s, wpa2, ac, u"DE"_s, {{104, mhz80, -91, 6}}},
    };
}

CodeSet codes(std::initializer_list<int> list)
{
    CodeSet set;
    for (const int code : list) {
        set.insert(code);
    }
    return set;
}

/// The codes for which a radio answers yes: the method itself and the families that contain it.
CodeSet securityCodes(Protection protection)
{
    switch (protection) {
    case Protection::open:
        return codes({0});
    case Protection::enhancedOpen:
        return codes({14});
    case Protection::wep:
        return codes({1});
    case Protection::dynamicWEP:
        return codes({6});
    case Protection::wpa:
        return codes({2, 5});
    case Protection::wpaMixed:
        return codes({2, 3, 4, 5});
    case Protection::wpa2:
        return codes({4, 5});
    case Protection::wpa2And3:
        return codes({4, 5, 11, 13});
    case Protection::wpa3:
        return codes({5, 11});
    case Protection::wpaEnterprise:
        return codes({7, 10});
    case Protection::wpaMixedEnterprise:
        return codes({7, 8, 9, 10});
    case Protection::wpa2Enterprise:
        return codes({9, 10});
    case Protection::wpa3Enterprise:
        return codes({10, 12});
    }
    return {};
}

CodeSet phyModeCodes(Generation generation, int channel)
{
    const bool isLowBand = channel <= 14;
    CodeSet set = isLowBand ? codes({2, 3}) : codes({1});
    if (generation >= Generation::n) {
        set.insert(4);
    }
    if (generation >= Generation::ac && !isLowBand) {
        set.insert(5);
    }
    if (generation >= Generation::ax) {
        set.insert(6);
    }
    return set;
}

/// A sequence of numbers that is the same everywhere, which the standard library's distributions do not
/// promise.
class FixedNumbers
{
public:
    /// From 0 to `limit` - 1.
    int below(int limit)
    {
        m_state += 0x9e3779b97f4a7c15U;
        quint64 mixed = (m_state ^ (m_state >> 30U)) * 0xbf58476d1ce4e5b9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94d049bb133111ebU;
        return static_cast<int>((mixed ^ (mixed >> 31U)) % static_cast<quint64>(limit));
    }

private:
    quint64 m_state = 20;
};

/// A triangle wave between -100 and 100, as long as the whole scenario.
int wave(int position)
{
    constexpr int half = cycleCount / 2;
    return (2 * std::abs(position % cycleCount - half) - half) * 100 / half;
}

/// The signal of one radio, cycle by cycle: a slow and a quick wave, both whole over the length of the
/// scenario so that its end meets its beginning, and a little unrest.
std::array<int, cycleCount> signalOf(const Station& station, FixedNumbers& numbers)
{
    const int slowPhase = numbers.below(cycleCount);
    const int quickPhase = numbers.below(cycleCount);
    std::array<int, cycleCount> signal{};
    for (int cycle = 0; cycle < cycleCount; ++cycle) {
        const int waves = 3 * wave(cycle + slowPhase) + wave(5 * cycle + quickPhase);
        signal[static_cast<std::size_t>(cycle)] =
            station.level + station.drift * waves / 400 + numbers.below(3) - 1;
    }
    return signal;
}

/// Locally administered addresses, which no vendor has: five bytes for the owner, one for the radio.
QString addressOf(quint64 ownerBytes, std::size_t station)
{
    const QByteArray bytes = QByteArray::number(0x020000000000U | ownerBytes << 8U | (station + 1) * 4, 16);
    return QString::fromLatin1(QByteArray::fromHex(bytes.rightJustified(12, '0')).toHex(':'));
}

CWNetwork networkOf(const Owner& owner, const Station& station, const QString& address)
{
    CWNetwork network;
    network.bssid = address;
    if (!owner.ssid.isNull()) {
        network.ssid = owner.ssid;
    }
    network.ssidData = owner.ssid.toUtf8();
    network.wlanChannel = CWChannel{station.channel, static_cast<int>(station.width)};
    if (!owner.country.isNull()) {
        network.countryCode = owner.country;
    }
    network.beaconInterval = 100;
    network.securityCodes = securityCodes(owner.protection);
    network.phyModeCodes = phyModeCodes(owner.generation, station.channel);
    return network;
}

} // namespace

Scenario neighbourhood()
{
    Scenario scenario;
    scenario.afterLast = AfterLast::loop;
    scenario.cycles.resize(cycleCount);
    scenario.interface->channels =
        QList<qint64>{1,  2,  3,  4,  5,  6,  7,   8,   9,   10,  11,  12,  13,  36,  40,
                      44, 48, 52, 56, 60, 64, 100, 104, 108, 112, 116, 149, 153, 157, 161};
    FixedNumbers numbers;
    std::optional<ScenarioAssociation> joined;
    for (const Owner& owner : owners()) {
        const auto ownerBytes = static_cast<quint64>(numbers.below(1 << 30));
        for (std::size_t index = 0; index < owner.stations.size(); ++index) {
            const Station& station = owner.stations[index];
            CWNetwork network = networkOf(owner, station, addressOf(ownerBytes, index));
            if (!joined) {
                joined = ScenarioAssociation{network.ssid, network.bssid};
            }
            const std::array<int, cycleCount> signal = signalOf(station, numbers);
            for (std::size_t cycle = 0; cycle < signal.size(); ++cycle) {
                network.rssiValue = signal[cycle];
                if (signal[cycle] >= receiverFloor) {
                    scenario.cycles[static_cast<qsizetype>(cycle)].networks.append(network);
                }
            }
        }
    }
    for (ScenarioCycle& cycle : scenario.cycles) {
        cycle.joined = joined;
    }
    return scenario;
}

} // namespace aerolith
