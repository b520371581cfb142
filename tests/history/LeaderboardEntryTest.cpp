#include "history/LeaderboardEntry.h"

#include <limits>

#include <gtest/gtest.h>

#include "support/RecordedScanBuilder.h"

namespace Loadwick {

namespace {

LeaderboardEntry entryOf(std::int64_t total, std::optional<std::int64_t> previousTotal)
{
    return {.latest = RecordedScanBuilder().ofTotal(total).build(),
            .previousTotal = previousTotal,
            .scanCount = previousTotal ? 2 : 1};
}

} // namespace

TEST(LeaderboardEntryTest, hasNoTrendAndNoDeltaForTheFirstScan)
{
    const LeaderboardEntry first = entryOf(30'000, std::nullopt);
    EXPECT_EQ(first.trend(), std::nullopt);
    EXPECT_EQ(first.delta(), std::nullopt);
}

TEST(LeaderboardEntryTest, oneTokenMoreIsAlreadyUp)
{
    EXPECT_EQ(entryOf(30'001, 30'000).trend(), TrendDirection::up);
    EXPECT_EQ(entryOf(30'001, 30'000).delta(), 1);
}

TEST(LeaderboardEntryTest, oneTokenLessIsAlreadyDown)
{
    EXPECT_EQ(entryOf(29'999, 30'000).trend(), TrendDirection::down);
    EXPECT_EQ(entryOf(29'999, 30'000).delta(), -1);
}

TEST(LeaderboardEntryTest, equalTotalsAreFlat)
{
    EXPECT_EQ(entryOf(30'000, 30'000).trend(), TrendDirection::flat);
    EXPECT_EQ(entryOf(30'000, 30'000).delta(), 0);
    EXPECT_EQ(entryOf(0, 0).trend(), TrendDirection::flat);
}

TEST(LeaderboardEntryTest, aDifferenceThatDoesNotFitEndsTheProgram)
{
    const LeaderboardEntry entry = entryOf(std::numeric_limits<std::int64_t>::min(), 1);
    EXPECT_EQ(entry.trend(), TrendDirection::down);
    EXPECT_DEATH((void)entry.delta(), "does not fit 64 bits");
}

} // namespace Loadwick
