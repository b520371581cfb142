#include "report/ReportTable.h"

#include <gtest/gtest.h>

#include "report/ScanReport.h"
#include "samples/SampleReport.h"

namespace Loadwick {
namespace {

const std::string head =
    "Repository,Path,Date (UTC),Kind,Name,Tokens,Source,Bytes,Tier,Imported by\r\n";
const std::string scan = "shop,\"/code/shop, old\",2026-03-04T09:15:27Z,";
const std::string totalRow = scan + "Total,,31000,reported by Claude,,,\r\n";

ScanReport smallReport()
{
    ScanReport report = sampleReport();
    report.repositoryName = "shop";
    report.repositoryPath = "/code/shop, old";
    report.total = 31'000;
    report.rows.clear();
    report.fileSet = {};
    return report;
}

std::string tableOf(const ScanReport &report)
{
    return ReportTable::bytes(report,
                              std::chrono::sys_seconds(std::chrono::seconds(1'772'615'727)));
}

TEST(ReportTableTest, beginsWithTheTotal)
{
    EXPECT_EQ(tableOf(smallReport()), head + totalRow);
}

TEST(ReportTableTest, leavesAnUnknownDateEmptyAndNoNameAFormula)
{
    ScanReport report = smallReport();
    report.repositoryName = "=shop";
    report.repositoryPath = "/=shop";
    EXPECT_EQ(ReportTable::bytes(report, {}),
              head + "'=shop,/=shop,,Total,,31000,reported by Claude,,,\r\n");
}

TEST(ReportTableTest, saysOfEachCategoryWhereItsFigureComesFrom)
{
    ScanReport report = smallReport();
    report.rows = {{"Tools, \"MCP\"", 12'000, Provenance::selfReported, 0},
                   {"=Unattributed", 400, Provenance::remainder, 1}};
    EXPECT_EQ(tableOf(report),
              head + totalRow + scan +
                  "Category,\"Tools, \"\"MCP\"\"\",12000,self-reported by the session (estimate),"
                  ",,\r\n" +
                  scan + "Category,'=Unattributed,400,derived: total minus attributed,,,\r\n");
}

TEST(ReportTableTest, listsEveryFileWithItsTierAndWhatImportsIt)
{
    ScanReport report = smallReport();
    report.fileSet.repositoryFiles = {InstructionFileEstimate::fromPath("/shop/CLAUDE.md", 10),
                                      InstructionFileEstimate::fromPath("/shop/a b.md", 4)};
    report.fileSet.personalFiles = {InstructionFileEstimate::fromPath("/home/CLAUDE.md", 0)};
    // Reading the first one was refused after it was counted.
    report.fileSet.unreadablePaths = {"/shop/CLAUDE.md", "/shop/secret.md"};
    report.fileSet.importers = {{"/shop/a b.md", "/shop/CLAUDE.md"}};
    const std::string source = ",measured on disk at ~4 bytes/token (estimate),";
    EXPECT_EQ(tableOf(report),
              head + totalRow + scan + "File,/shop/CLAUDE.md,3" + source +
                  "10,Repository instructions,\r\n" + scan + "File,/shop/a b.md,1" + source +
                  "4,Repository instructions,/shop/CLAUDE.md\r\n" + scan +
                  "File,/home/CLAUDE.md,0" + source + "0,Personal instructions,\r\n" + scan +
                  "File,/shop/secret.md,,could not be read,,,\r\n");
}

} // namespace
} // namespace Loadwick
