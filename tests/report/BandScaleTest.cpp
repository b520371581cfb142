#include "report/BandScale.h"

#include <algorithm>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "report/OpinionBand.h"

namespace Loadwick {

namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

double heavyTick(std::int64_t total)
{
    return BandScale::thresholdPosition(OpinionBand::heavyThreshold, total);
}

double excessiveTick(std::int64_t total)
{
    return BandScale::thresholdPosition(OpinionBand::excessiveThreshold, total);
}

} // namespace

TEST(BandScaleTest, endsAtTheNextStepAboveTheTotal)
{
    EXPECT_EQ(BandScale::maximum(12'000), 90'000);
    EXPECT_EQ(BandScale::maximum(89'999), 90'000);
    EXPECT_EQ(BandScale::maximum(90'000), 120'000);
    EXPECT_EQ(BandScale::maximum(125'000), 150'000);
    EXPECT_EQ(BandScale::maximum(-7), 90'000);
    EXPECT_EQ(BandScale::maximum(smallest), 90'000);
}

TEST(BandScaleTest, placesATotalOfZeroAtTheLeftEndAndTheTicksAtThirds)
{
    EXPECT_EQ(BandScale::maximum(0), 90'000);
    EXPECT_EQ(BandScale::position(0), 0.0);
    EXPECT_DOUBLE_EQ(heavyTick(0), 1.0 / 3);
    EXPECT_DOUBLE_EQ(excessiveTick(0), 2.0 / 3);
}

TEST(BandScaleTest, movesTheTicksLeftWhenTheScaleGrows)
{
    EXPECT_EQ(BandScale::maximum(90'000), 120'000);
    EXPECT_DOUBLE_EQ(BandScale::position(90'000), 0.75);
    EXPECT_DOUBLE_EQ(heavyTick(90'000), 0.25);
    EXPECT_DOUBLE_EQ(excessiveTick(90'000), 0.5);
}

TEST(BandScaleTest, clampsEveryPosition)
{
    EXPECT_EQ(BandScale::position(-1), 0.0);
    EXPECT_EQ(BandScale::position(smallest), 0.0);
    EXPECT_EQ(BandScale::thresholdPosition(-30'000, 0), 0.0);
    EXPECT_EQ(BandScale::thresholdPosition(largest, 0), 1.0);
}

TEST(BandScaleTest, doesNotOverflowNearTheLargestInteger)
{
    for (const std::int64_t total : {largest, largest - 1, largest - largest % 30'000}) {
        EXPECT_EQ(BandScale::maximum(total), largest) << total;
        EXPECT_LE(BandScale::position(total), 1.0);
        EXPECT_GT(BandScale::position(total), 0.999);
    }
    const std::int64_t lastStep = largest - largest % BandScale::step;
    EXPECT_EQ(BandScale::maximum(lastStep - 1), lastStep);
}

TEST(BandScaleTest, keepsItsRulesForRandomTotals)
{
    std::mt19937_64 random(41);
    std::uniform_int_distribution<std::int64_t> all(1, largest - BandScale::step - 1);
    std::uniform_int_distribution<int> shifts(0, 62);
    for (int round = 0; round < 20'000; ++round) {
        const std::int64_t total = std::max<std::int64_t>(all(random) >> shifts(random), 1);
        const std::int64_t maximum = BandScale::maximum(total);
        EXPECT_EQ(maximum % BandScale::step, 0) << total;
        EXPECT_GT(maximum, total);
        EXPECT_TRUE(maximum == BandScale::normalMaximum || maximum - BandScale::step <= total);
        EXPECT_GE(BandScale::position(total), 0.0);
        EXPECT_LE(BandScale::position(total), 1.0);
    }
}

} // namespace Loadwick
