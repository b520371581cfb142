#include "report/ReportTable.h"

#include <gtest/gtest.h>

#include "report/ScanReport.h"
#include "samples/SampleReport.h"

namespace Loadwick {
namespace {

const std::string head = "Kind,Name,Tokens,Source,Bytes,Tier,Imported by\r\n";

ScanReport smallReport()
{
    ScanReport report = sampleReport();
    report.repositoryName = "shop";
    report.total = 31'000;
    report.rows.clear();
    report.fileSet = {};
    return report;
}

const std::string totalRow = "Total,shop,31000,reported by Claude,,,\r\n";

TEST(ReportTableTest, beginsWithTheTotal)
{
    EXPECT_EQ(ReportTable::bytes(smallReport()), head + totalRow);
}

TEST(ReportTableTest, saysOfEachCategoryWhereItsFigureComesFrom)
{
    ScanReport report = smallReport();
    report.rows = {{"Tools, \"MCP\"", 12'000, Provenance::selfReported, 0},
                   {"=Unattributed", 400, Provenance::remainder, 1}};
    EXPECT_EQ(ReportTable::bytes(report),
              head + totalRow +
                  "Category,\"Tools, \"\"MCP\"\"\",12000,self-reported by the session (estimate),"
                  ",,\r\n"
                  "Category,'=Unattributed,400,derived: total minus attributed,,,\r\n");
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
    const std::string source = "measured on disk at ~4 bytes/token (estimate)";
    EXPECT_EQ(ReportTable::bytes(report), head + totalRow + "File,/shop/CLAUDE.md,3," + source +
                                              ",10,Repository instructions,\r\n"
                                              "File,/shop/a b.md,1," +
                                              source +
                                              ",4,Repository instructions,/shop/CLAUDE.md\r\n"
                                              "File,/home/CLAUDE.md,0," +
                                              source +
                                              ",0,Personal instructions,\r\n"
                                              "File,/shop/secret.md,,could not be read,,,\r\n");
}

} // namespace
} // namespace Loadwick
