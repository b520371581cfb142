#include "report/OpinionBand.h"

#include <algorithm>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "support/EnumerationNames.h"
#include "text/TextLocale.h"

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

TEST(OpinionBandTest, isLeanBelowTheLowerThreshold)
{
    EXPECT_EQ(OpinionBand::band(29'999), OpinionBand::lean);
    EXPECT_EQ(OpinionBand::band(0), OpinionBand::lean);
    EXPECT_EQ(OpinionBand::band(-1), OpinionBand::lean);
    EXPECT_EQ(OpinionBand::band(smallest), OpinionBand::lean);
}

TEST(OpinionBandTest, isHeavyAtBothThresholdsAndBetween)
{
    EXPECT_EQ(OpinionBand::band(30'000), OpinionBand::heavy);
    EXPECT_EQ(OpinionBand::band(45'000), OpinionBand::heavy);
    EXPECT_EQ(OpinionBand::band(60'000), OpinionBand::heavy);
}

TEST(OpinionBandTest, isExcessiveAboveTheUpperThreshold)
{
    EXPECT_EQ(OpinionBand::band(60'001), OpinionBand::excessive);
    EXPECT_EQ(OpinionBand::band(largest), OpinionBand::excessive);
}

TEST(OpinionBandTest, wordsItsBoundsInTheLocalesFigures)
{
    const TextLocale english;
    EXPECT_EQ(OpinionBand(OpinionBand::lean).range(english), "under 30,000");
    EXPECT_EQ(OpinionBand(OpinionBand::heavy).range(english), "30,000\u201360,000");
    EXPECT_EQ(OpinionBand(OpinionBand::excessive).range(english), "over 60,000");
    EXPECT_EQ(OpinionBand(OpinionBand::heavy).range({.numbers = "de_DE"}), "30.000\u201360.000");
}

TEST(OpinionBandTest, hasFixedNotes)
{
    EXPECT_EQ(OpinionBand::opinionNote,
              "These bands are this app's opinion, not an industry standard.");
    EXPECT_EQ(OpinionBand::anchorNote,
              "Anchor: a measured subagent startup slab on this machine was 24,508 tokens "
              "(halden-machine-config tests/context_probe_record.json, 2026-08-23). A main session "
              "adds catalogues a subagent does not receive, so 30,000 sits just above that "
              "measured floor, and 60,000 is where startup exceeds a quarter of a 200k window.");
}

TEST(OpinionBandTest, namesItsCases)
{
    expectNames<OpinionBand>({"lean", "heavy", "excessive"});
}

TEST(OpinionBandTest, titlesItsCases)
{
    EXPECT_EQ(OpinionBand(OpinionBand::lean).title(), "Lean");
    EXPECT_EQ(OpinionBand(OpinionBand::heavy).title(), "Heavy");
    EXPECT_EQ(OpinionBand(OpinionBand::excessive).title(), "Excessive");
}

TEST(OpinionBandTest, endsItsScaleAtTheNextStepAboveTheTotal)
{
    EXPECT_EQ(BandScale::maximum(12'000), 90'000);
    EXPECT_EQ(BandScale::maximum(89'999), 90'000);
    EXPECT_EQ(BandScale::maximum(90'000), 120'000);
    EXPECT_EQ(BandScale::maximum(125'000), 150'000);
    EXPECT_EQ(BandScale::maximum(-7), 90'000);
    EXPECT_EQ(BandScale::maximum(smallest), 90'000);
}

TEST(OpinionBandTest, positionsATotalOfZeroAtTheLeftEndAndTheTicksAtThirds)
{
    EXPECT_EQ(BandScale::maximum(0), 90'000);
    EXPECT_EQ(BandScale::position(0), 0.0);
    EXPECT_DOUBLE_EQ(heavyTick(0), 1.0 / 3);
    EXPECT_DOUBLE_EQ(excessiveTick(0), 2.0 / 3);
}

TEST(OpinionBandTest, movesTheTicksLeftWhenTheScaleGrows)
{
    EXPECT_EQ(BandScale::maximum(90'000), 120'000);
    EXPECT_DOUBLE_EQ(BandScale::position(90'000), 0.75);
    EXPECT_DOUBLE_EQ(heavyTick(90'000), 0.25);
    EXPECT_DOUBLE_EQ(excessiveTick(90'000), 0.5);
}

TEST(OpinionBandTest, clampsEveryPosition)
{
    EXPECT_EQ(BandScale::position(-1), 0.0);
    EXPECT_EQ(BandScale::position(smallest), 0.0);
    EXPECT_EQ(BandScale::thresholdPosition(-30'000, 0), 0.0);
    EXPECT_EQ(BandScale::thresholdPosition(largest, 0), 1.0);
}

TEST(OpinionBandTest, doesNotOverflowNearTheLargestInteger)
{
    for (const std::int64_t total : {largest, largest - 1, largest - largest % 30'000}) {
        EXPECT_EQ(BandScale::maximum(total), largest) << total;
        EXPECT_LE(BandScale::position(total), 1.0);
        EXPECT_GT(BandScale::position(total), 0.999);
    }
    const std::int64_t lastStep = largest - largest % BandScale::step;
    EXPECT_EQ(BandScale::maximum(lastStep - 1), lastStep);
}

TEST(OpinionBandTest, obeysTheScalesRulesForRandomTotals)
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
