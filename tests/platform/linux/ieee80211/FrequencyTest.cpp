#include "platform/linux/ieee80211/Frequency.h"

#include <gtest/gtest.h>

#include <tuple>

namespace aerolith::ieee80211 {
namespace {

TEST(Frequency, FindsTheChannelAndTheBand)
{
    const std::tuple<std::uint32_t, qint64, Band> cases[] = {
        {2412, 1, Band::ghz2_4}, {2472, 13, Band::ghz2_4}, {2484, 14, Band::ghz2_4}, {4920, 184, Band::ghz5},
        {5885, 177, Band::ghz5}, {5935, 2, Band::ghz6},    {5955, 1, Band::ghz6},    {7115, 233, Band::ghz6}};
    for (const auto& [frequency, number, ofBand] : cases) {
        EXPECT_EQ(channelNumber(frequency), number) << frequency;
        EXPECT_EQ(band(frequency), ofBand) << frequency;
    }
}

TEST(Frequency, HasNoChannelBetweenTheChannels)
{
    for (const std::uint32_t frequency :
         {0U, 5U, 902U, 2407U, 2414U, 2477U, 2485U, 5183U, 5000U, 5950U, 58320U, ~0U}) {
        EXPECT_FALSE(channelNumber(frequency)) << frequency;
        EXPECT_FALSE(band(frequency)) << frequency;
    }
}

} // namespace
} // namespace aerolith::ieee80211
