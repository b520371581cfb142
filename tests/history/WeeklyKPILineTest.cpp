#include "history/WeeklyKPILine.h"

#include <limits>

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

WeeklyKPILine lineOf(std::int64_t median, std::int64_t tokensPerPR)
{
    return {.medianTokensPerSession = median,
            .tokensPerPR = tokensPerPR,
            .totalTokens = std::nullopt,
            .mergedPRs = std::nullopt,
            .windowStart = "unknown",
            .windowEnd = "unknown",
            .timestamp = "unknown"};
}

} // namespace

TEST(WeeklyKPILineTest, isNoTokenFromItsTargets)
{
    EXPECT_EQ(lineOf(27'510'462, 0).medianDelta(), 0);
    EXPECT_EQ(lineOf(0, 37'681'168).tokensPerPRDelta(), 0);
}

TEST(WeeklyKPILineTest, lowerFiguresGiveNegativeDeltas)
{
    EXPECT_EQ(lineOf(27'510'461, 0).medianDelta(), -1);
    EXPECT_EQ(lineOf(0, 37'681'167).tokensPerPRDelta(), -1);
}

TEST(WeeklyKPILineTest, higherFiguresGivePositiveDeltas)
{
    EXPECT_EQ(lineOf(27'511'696, 0).medianDelta(), 1'234);
    EXPECT_EQ(lineOf(0, 37'682'402).tokensPerPRDelta(), 1'234);
}

TEST(WeeklyKPILineTest, aDeltaThatDoesNotFitEndsTheProgram)
{
    constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();
    EXPECT_DEATH((void)lineOf(smallest, 0).medianDelta(), "does not fit 64 bits");
    EXPECT_DEATH((void)lineOf(0, smallest).tokensPerPRDelta(), "does not fit 64 bits");
}

} // namespace Loadwick
