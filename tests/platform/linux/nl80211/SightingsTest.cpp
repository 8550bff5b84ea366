#include "platform/linux/nl80211/Sightings.h"

#include "platform/linux/ieee80211/Frame.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace aerolith::nl80211 {
namespace {

using namespace std::chrono_literals;

constexpr BootTime started = 100s;
constexpr BootTime dumped = 104s;

/// Heard `when`, with a signal that tells it from others of the same address.
BssEntry heard(std::uint8_t address, const QByteArray& name, BootTime when, int decibels = -50)
{
    BssEntry entry;
    entry.address = ieee80211::HardwareAddress{2, 0, 0, 0, 0, address};
    entry.elements = test::element(0, name);
    entry.lastSeenBootTime = static_cast<std::uint64_t>(when.count());
    entry.signal = decibels * 100;
    return entry;
}

using Lines = std::vector<std::string>;

/// Last digit of the address, name and signal of each sighting.
Lines seen(const QList<BssEntry>& entries, const std::optional<QByteArray>& ssid = {})
{
    Lines lines;
    for (const CWNetwork& network : sightings(entries, started, dumped, ssid)) {
        lines.push_back((network.bssid->right(1) + u' ' + network.ssid.value_or(QStringLiteral("-")) +
                         QString::number(network.rssiValue))
                            .toStdString());
    }
    return lines;
}

TEST(Sightings, AreHeardDuringThisScanAndHaveAnAddress)
{
    BssEntry nowhere = heard(4, "d", started);
    nowhere.address = {};
    EXPECT_EQ(
        seen({heard(2, "b", started - 1ns), heard(3, "c", started), nowhere, nowhere, heard(1, "a", dumped)}),
        Lines({"1 a-50", "3 c-50"}));
}

TEST(Sightings, GoByTheAgeWhereTheDriverTellsNoTime)
{
    const auto heardAgo = [](std::uint8_t address, const QByteArray& name, std::uint32_t milliseconds) {
        BssEntry entry = heard(address, name, 0s);
        entry.lastSeenBootTime = {};
        entry.seenMillisecondsAgo = milliseconds;
        return entry;
    };
    BssEntry unknown = heard(3, "unknown", 0s);
    unknown.lastSeenBootTime = {};
    BssEntry lastSeenCounts = heard(4, "stale", started - 1s);
    lastSeenCounts.seenMillisecondsAgo = 1;
    EXPECT_EQ(seen({heardAgo(1, "young", 4000), heardAgo(2, "old", 4001), unknown, lastSeenCounts,
                    heardAgo(5, "older", ~0U)}),
              Lines({"1 young-50"}));
}

TEST(Sightings, AreOnePerAddressTheNewestThatKnowsTheName)
{
    // A name heard before this scan is no sighting.
    EXPECT_EQ(seen({heard(1, "old", started, -40), heard(1, "new", started + 1s, -60),
                    heard(2, {}, started + 2s, -40), heard(2, "secret", started + 1s, -60),
                    heard(3, "secret", started - 1s, -40), heard(3, QByteArray(6, '\0'), started, -60)}),
              Lines({"1 new-60", "2 secret-60", "3 --60"}));
}

TEST(Sightings, OfADirectedScanHaveThatName)
{
    const QList<BssEntry> entries{heard(1, "cafe", started, -40), heard(1, "Cafe", started + 1s, -60),
                                  heard(2, {}, started), heard(3, "cafe 2", started)};
    EXPECT_EQ(seen(entries, "cafe"), Lines({"1 cafe-40"}));
    EXPECT_EQ(seen(entries, QByteArray("")), Lines({"2 --50"}));
}

TEST(HidesName, GoesByTheBeaconsOfThatAddress)
{
    BssEntry answered = heard(1, "cafe", started);
    EXPECT_FALSE(hidesName({answered, heard(2, {}, started)}, QStringLiteral("02:00:00:00:00:01")));
    EXPECT_TRUE(hidesName({answered, heard(1, {}, started)}, QStringLiteral("02:00:00:00:00:01")));
    answered.beaconElements = test::element(0, QByteArray(4, '\0'));
    EXPECT_TRUE(hidesName({answered}, QStringLiteral("02:00:00:00:00:01")));
}

} // namespace
} // namespace aerolith::nl80211
