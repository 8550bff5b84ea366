#include "platform/linux/ieee80211/Frequency.h"

#include <gtest/gtest.h>

namespace aerolith::ieee80211 {
namespace {

TEST(Frequency, FindsTheChannelAndTheBand)
{
    struct Case
    {
        std::uint32_t frequency;
        qint64 number;
        Band band;
    };

    for (const Case& known :
         {Case{2412, 1, Band::ghz2_4}, Case{2472, 13, Band::ghz2_4}, Case{2484, 14, Band::ghz2_4},
          Case{4920, 184, Band::ghz5}, Case{5180, 36, Band::ghz5}, Case{5885, 177, Band::ghz5},
          Case{5935, 2, Band::ghz6}, Case{5955, 1, Band::ghz6}, Case{7115, 233, Band::ghz6}}) {
        EXPECT_EQ(channelNumber(known.frequency), known.number) << known.frequency;
        EXPECT_EQ(band(known.frequency), known.band) << known.frequency;
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
