#include "history/ScanTables.h"

#include <vector>

#include <gtest/gtest.h>

#include "support/RecordedScanBuilder.h"

namespace Loadwick {
namespace {

const std::string head = "Repository,Path,Date (UTC),Total tokens,Band";

RecordedScanBuilder webshop()
{
    return RecordedScanBuilder().named("webshop").in("/home/a/webshop").at(1'772'615'727);
}

TEST(ScanTablesTest, aTableWithoutScansHasOnlyItsHeader)
{
    EXPECT_EQ(ScanTables::totals({}), head + "\r\n");
    EXPECT_EQ(ScanTables::categories({}), head + "\r\n");
}

TEST(ScanTablesTest, totalsAreOneRowPerScanInTheOrderGiven)
{
    const std::vector<RecordedScan> scans = {webshop().ofTotal(31'000).build(),
                                             webshop().at(0).ofTotal(28'500).build()};
    EXPECT_EQ(ScanTables::totals(scans),
              head + "\r\nwebshop,/home/a/webshop,2026-03-04T09:15:27Z,31000,Heavy\r\n"
                     "webshop,/home/a/webshop,1970-01-01T00:00:00Z,28500,Lean\r\n");
}

TEST(ScanTablesTest, totalsHoldNoCategories)
{
    const std::vector<RecordedScan> scans = {
        webshop().ofTotal(1).withCategory("Secret plans", 1).build()};
    EXPECT_EQ(ScanTables::totals(scans).find("Secret"), std::string::npos);
}

TEST(ScanTablesTest, categoriesHaveOneColumnEachTheHeaviestFirst)
{
    const std::vector<RecordedScan> scans = {
        webshop().ofTotal(10).withCategory("Tools", 4).withCategory("Memory", 1).build(),
        webshop().named("api").ofTotal(20).withCategory("Memory", 9).build()};
    EXPECT_EQ(ScanTables::categories(scans),
              head + ",Memory tokens (estimate),Tools tokens (estimate)\r\n"
                     "webshop,/home/a/webshop,2026-03-04T09:15:27Z,10,Lean,1,4\r\n"
                     "api,/home/a/webshop,2026-03-04T09:15:27Z,20,Lean,9,\r\n");
}

TEST(ScanTablesTest, categoriesOfOneNameAreSummed)
{
    const std::vector<RecordedScan> scans = {
        webshop().ofTotal(10).withCategory("Tools", 4).withCategory("Tools", 3).build()};
    EXPECT_TRUE(ScanTables::categories(scans).ends_with(",10,Lean,7\r\n"));
}

TEST(ScanTablesTest, namesNeverBecomeFormulas)
{
    const std::vector<RecordedScan> scans = {
        webshop().named("=cmd|' /C calc'!A0").ofTotal(1).withCategory("@SUM(1,2)", 1).build()};
    const std::string table = ScanTables::categories(scans);
    EXPECT_NE(table.find("\r\n'=cmd|"), std::string::npos);
    EXPECT_NE(table.find(",\"'@SUM(1,2) tokens (estimate)\"\r\n"), std::string::npos);
}

} // namespace
} // namespace Loadwick
