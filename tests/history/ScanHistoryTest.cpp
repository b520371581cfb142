#include "history/ScanHistory.h"

#include <algorithm>
#include <limits>

#include <gtest/gtest.h>

#include "support/RecordedScanBuilder.h"

namespace Loadwick {

namespace {

using Scans = std::vector<RecordedScan>;

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

RecordedScan scanOf(const char *path, std::int64_t date, const char *name = "webshop")
{
    return RecordedScanBuilder().named(name).in(path).at(date).build();
}

/// A scan of /a whose identifier repeats `digit`.
RecordedScan identifiedScan(char digit, std::int64_t date, std::int64_t total)
{
    RecordedScan scan = RecordedScanBuilder().in("/a").at(date).ofTotal(total).build();
    std::string text = "00000000-0000-0000-0000-000000000000";
    std::replace(text.begin(), text.end(), '0', digit);
    scan.id = Uuid::fromText(text).value();
    return scan;
}

RecordedScan weighedScan(const char *path, std::int64_t total, const char *name = "webshop")
{
    return RecordedScanBuilder().named(name).in(path).ofTotal(total).build();
}

std::vector<RecordedScan> latestOf(const std::vector<LeaderboardEntry> &entries)
{
    std::vector<RecordedScan> latest;
    for (const LeaderboardEntry &entry : entries)
        latest.push_back(entry.latest);
    return latest;
}

LeaderboardEntry entryOf(std::int64_t total, std::optional<std::int64_t> previousTotal)
{
    return {.latest = RecordedScanBuilder().ofTotal(total).build(),
            .previousTotal = previousTotal,
            .scanCount = previousTotal ? 2 : 1};
}

} // namespace

TEST(ScanHistoryTest, findsNothingInAnEmptyList)
{
    EXPECT_TRUE(ScanHistory::scans({}, "/a").empty());
    EXPECT_EQ(ScanHistory::mostRecentRepositoryPath({}), std::nullopt);
    EXPECT_TRUE(ScanHistory::newestFirst({}).empty());
    EXPECT_TRUE(ScanHistory::latestPerRepository({}).empty());
    EXPECT_TRUE(ScanHistory::leaderboard({}).empty());
    EXPECT_TRUE(ScanHistory::categoryAxis({}).empty());
}

TEST(ScanHistoryTest, listsTheScansOfOneRepositoryInTheirOrder)
{
    const std::vector scans = {scanOf("/a", 2), scanOf("/b", 1), scanOf("/a", 1), scanOf("/A", 1)};
    EXPECT_EQ(ScanHistory::scans(scans, "/a"), (std::vector{scans[0], scans[2]}));
    EXPECT_TRUE(ScanHistory::scans(scans, "/c").empty());
}

TEST(ScanHistoryTest, mostRecentRepositoryIsThatOfTheLastScan)
{
    const std::vector scans = {scanOf("/a", 2), scanOf("/b", 1)};
    EXPECT_EQ(ScanHistory::mostRecentRepositoryPath(scans), "/b");
}

TEST(ScanHistoryTest, keepsTheLatestScanOfEachRepositoryInAnyOrder)
{
    const std::vector scans = {scanOf("/a", 2), scanOf("/a", 3), scanOf("/a", 1)};
    EXPECT_EQ(ScanHistory::latestPerRepository(scans), std::vector{scans[1]});
}

TEST(ScanHistoryTest, prefersTheFirstOfScansWithTheSameDate)
{
    const std::vector scans = {scanOf("/a", 1), scanOf("/a", 1)};
    EXPECT_EQ(ScanHistory::latestPerRepository(scans), std::vector{scans[0]});
}

TEST(ScanHistoryTest, ordersRepositoriesByNameThenByPath)
{
    const std::vector scans = {scanOf("/z", 1, "b"), scanOf("/a", 1, "b"), scanOf("/y", 1, "a")};
    EXPECT_EQ(ScanHistory::latestPerRepository(scans), (std::vector{scans[2], scans[1], scans[0]}));
}

TEST(ScanHistoryTest, listsTheNewestFirst)
{
    const std::vector scans = {scanOf("/a", 2), scanOf("/b", 3), scanOf("/a", 1)};
    EXPECT_EQ(ScanHistory::newestFirst(scans), (std::vector{scans[1], scans[0], scans[2]}));
}

TEST(ScanHistoryTest, listsScansOfOneSecondByIdentifierDescending)
{
    const std::vector scans = {identifiedScan('9', 1, 1), identifiedScan('f', 1, 2),
                               identifiedScan('a', 1, 3)};
    EXPECT_EQ(ScanHistory::newestFirst(scans), (std::vector{scans[1], scans[2], scans[0]}));
}

TEST(ScanHistoryTest, sortsStably)
{
    const std::vector scans = {identifiedScan('1', 1, 10), identifiedScan('1', 1, 20)};
    EXPECT_EQ(ScanHistory::newestFirst(scans), scans);
}

TEST(ScanHistoryTest, ranksARepositoryThatWasScannedOnceWithoutAPreviousTotal)
{
    const std::vector scans = {scanOf("/a", 1)};
    const LeaderboardEntry only{.latest = scans[0], .previousTotal = std::nullopt, .scanCount = 1};
    EXPECT_EQ(ScanHistory::leaderboard(scans), std::vector{only});
}

TEST(ScanHistoryTest, comparesTheTwoLatestScansInAnyOrder)
{
    std::vector scans = {identifiedScan('1', 1, 10), identifiedScan('2', 2, 20),
                         identifiedScan('3', 3, 30)};
    const LeaderboardEntry expected{.latest = scans[2], .previousTotal = 20, .scanCount = 3};
    do {
        EXPECT_EQ(ScanHistory::leaderboard(scans), std::vector{expected});
    } while (
        std::next_permutation(scans.begin(), scans.end(), [](const auto &left, const auto &right) {
            return left.total < right.total;
        }));
}

TEST(ScanHistoryTest, lastIdentifierOfOneSecondIsTheLatest)
{
    const std::vector scans = {identifiedScan('f', 1, 10), identifiedScan('9', 1, 20)};
    const LeaderboardEntry expected{.latest = scans[0], .previousTotal = 20, .scanCount = 2};
    EXPECT_EQ(ScanHistory::leaderboard(scans), std::vector{expected});
}

TEST(ScanHistoryTest, ranksTheHeaviestFirst)
{
    const std::vector scans = {weighedScan("/a", 1), weighedScan("/b", 3), weighedScan("/c", 2)};
    EXPECT_EQ(latestOf(ScanHistory::leaderboard(scans)),
              (std::vector{scans[1], scans[2], scans[0]}));
}

TEST(ScanHistoryTest, ranksByTheLatestTotalNotByTheLargest)
{
    const std::vector scans = {identifiedScan('1', 1, 90), identifiedScan('2', 2, 10),
                               weighedScan("/b", 20)};
    EXPECT_EQ(latestOf(ScanHistory::leaderboard(scans)), (std::vector{scans[2], scans[1]}));
}

TEST(ScanHistoryTest, ranksEqualTotalsByNameThenByPath)
{
    const std::vector scans = {weighedScan("/z", 5, "b"), weighedScan("/a", 5, "b"),
                               weighedScan("/y", 5, "a"), weighedScan("/x", 5, "B")};
    EXPECT_EQ(latestOf(ScanHistory::leaderboard(scans)),
              (std::vector{scans[3], scans[2], scans[1], scans[0]}));
}

TEST(ScanHistoryTest, distinguishesRepositoriesOfOneName)
{
    const std::vector scans = {weighedScan("/b", 5), weighedScan("/a", 5)};
    const auto entries = ScanHistory::leaderboard(scans);
    EXPECT_EQ(latestOf(entries), (std::vector{scans[1], scans[0]}));
    EXPECT_EQ(entries[0].scanCount, 1);
}

TEST(ScanHistoryTest, listsCategoriesByTheTokensOfAllScansTheHeaviestFirst)
{
    const std::vector scans = {
        RecordedScanBuilder().withCategory("tools", 6).withCategory("memory", 5).build(),
        RecordedScanBuilder().withCategory("memory", 5).withCategory("agents", 8).build()};
    EXPECT_EQ(ScanHistory::categoryAxis(scans),
              (std::vector<std::string>{"memory", "agents", "tools"}));
}

TEST(ScanHistoryTest, sumsACategoryThatOneScanNamesTwice)
{
    const std::vector scans = {RecordedScanBuilder()
                                   .withCategory("tools", 5)
                                   .withCategory("memory", 3)
                                   .withCategory("memory", 3)
                                   .build()};
    EXPECT_EQ(ScanHistory::categoryAxis(scans), (std::vector<std::string>{"memory", "tools"}));
}

TEST(ScanHistoryTest, listsEquallyHeavyCategoriesByNameByteByByte)
{
    const std::vector scans = {RecordedScanBuilder()
                                   .withCategory("tools", 1)
                                   .withCategory("Zebra", 1)
                                   .withCategory("ärger", 1)
                                   .withCategory("nothing", 0)
                                   .build()};
    EXPECT_EQ(ScanHistory::categoryAxis(scans),
              (std::vector<std::string>{"Zebra", "tools", "ärger", "nothing"}));
}

TEST(ScanHistoryTest, endsTheProgramWhenACategorySumOverflows)
{
    const std::vector scans = {
        RecordedScanBuilder().withCategory("tools", largest).withCategory("tools", 1).build()};
    EXPECT_DEATH((void)ScanHistory::categoryAxis(scans), "does not fit 64 bits");
}

TEST(ScanHistoryTest, leavesOutAScanWhoseCategoriesCannotBeAddedToTheOthers)
{
    const auto scanOfTools = [](std::int64_t tokens) {
        return RecordedScanBuilder()
            .withCategory("memory", 7)
            .withCategory("tools", tokens)
            .withCategory("tools", 1)
            .build();
    };
    const Scans scans = {scanOfTools(5'000'000'000'000'000'000), scanOfTools(4'999'999'999'999),
                         scanOfTools(5'000'000'000'000'000'000), scanOfTools(largest),
                         scanOfTools(3)};
    EXPECT_EQ(ScanHistory::summable(scans), (Scans{scans[0], scans[1], scans[4]}));
    EXPECT_EQ(ScanHistory::summable({scans[2], scans[0]}), Scans{scans[2]});
    EXPECT_TRUE(ScanHistory::summable({scans[3]}).empty());
}

TEST(ScanHistoryTest, leavesOutAScanWhoseTotalDiffersTooMuchFromItsRepositorys)
{
    const Scans scans = {weighedScan("/a", -5), weighedScan("/b", largest),
                         weighedScan("/a", largest), weighedScan("/a", largest - 5),
                         weighedScan("/a", -6)};
    EXPECT_EQ(ScanHistory::summable(scans), (Scans{scans[0], scans[1], scans[3]}));
}

TEST(ScanHistoryTest, aFirstScanHasNoTrendAndNoDelta)
{
    const LeaderboardEntry first = entryOf(30'000, std::nullopt);
    EXPECT_EQ(first.trend(), std::nullopt);
    EXPECT_EQ(first.delta(), std::nullopt);
}

TEST(ScanHistoryTest, oneTokenDecidesTheTrend)
{
    struct Case
    {
        std::int64_t total;
        TrendDirection trend;
        std::int64_t delta;
    };
    for (const Case &expected : {Case{30'001, TrendDirection::up, 1},
                                 {29'999, TrendDirection::down, -1},
                                 {30'000, TrendDirection::flat, 0}}) {
        EXPECT_EQ(entryOf(expected.total, 30'000).trend(), expected.trend);
        EXPECT_EQ(entryOf(expected.total, 30'000).delta(), expected.delta);
    }
    EXPECT_EQ(entryOf(0, 0).trend(), TrendDirection::flat);
}

TEST(ScanHistoryTest, endsTheProgramWhenADeltaOverflows)
{
    const LeaderboardEntry entry = entryOf(std::numeric_limits<std::int64_t>::min(), 1);
    EXPECT_EQ(entry.trend(), TrendDirection::down);
    EXPECT_DEATH((void)entry.delta(), "does not fit 64 bits");
}

} // namespace Loadwick
