#include "history/ScanHistory.h"

#include <gtest/gtest.h>

#include "support/RecordedScanBuilder.h"

namespace Loadwick {

namespace {

RecordedScan scanOf(const char *path, std::int64_t date, const char *name = "webshop")
{
    return RecordedScanBuilder().named(name).in(path).at(date).build();
}

} // namespace

TEST(ScanHistoryTest, findsNothingInAnEmptyList)
{
    EXPECT_TRUE(ScanHistory::scans({}, "/a").empty());
    EXPECT_EQ(ScanHistory::mostRecentRepositoryPath({}), std::nullopt);
    EXPECT_TRUE(ScanHistory::latestPerRepository({}).empty());
}

TEST(ScanHistoryTest, listsTheScansOfOneRepositoryInTheirOrder)
{
    const std::vector scans = {scanOf("/a", 2), scanOf("/b", 1), scanOf("/a", 1), scanOf("/A", 1)};
    EXPECT_EQ(ScanHistory::scans(scans, "/a"), (std::vector{scans[0], scans[2]}));
    EXPECT_TRUE(ScanHistory::scans(scans, "/c").empty());
}

TEST(ScanHistoryTest, takesTheLastScansRepositoryForTheMostRecent)
{
    const std::vector scans = {scanOf("/a", 2), scanOf("/b", 1)};
    EXPECT_EQ(ScanHistory::mostRecentRepositoryPath(scans), "/b");
}

TEST(ScanHistoryTest, keepsTheLatestScanOfEachRepositoryWhateverTheOrder)
{
    const std::vector scans = {scanOf("/a", 2), scanOf("/a", 3), scanOf("/a", 1)};
    EXPECT_EQ(ScanHistory::latestPerRepository(scans), std::vector{scans[1]});
}

TEST(ScanHistoryTest, keepsTheFirstMetOfScansWithTheSameDate)
{
    const std::vector scans = {scanOf("/a", 1), scanOf("/a", 1)};
    EXPECT_EQ(ScanHistory::latestPerRepository(scans), std::vector{scans[0]});
}

TEST(ScanHistoryTest, ordersRepositoriesByNameThenByPath)
{
    const std::vector scans = {scanOf("/z", 1, "b"), scanOf("/a", 1, "b"), scanOf("/y", 1, "a")};
    EXPECT_EQ(ScanHistory::latestPerRepository(scans), (std::vector{scans[2], scans[1], scans[0]}));
}

} // namespace Loadwick
