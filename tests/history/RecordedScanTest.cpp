#include "history/RecordedScan.h"

#include <gtest/gtest.h>

#include "samples/SampleReport.h"
#include "support/RecordedScanBuilder.h"

namespace Loadwick {

namespace {

const std::chrono::sys_seconds date(std::chrono::seconds(1'772'615'727));

} // namespace

TEST(RecordedScanTest, copiesWhatTheReportTells)
{
    const ScanReport report = sampleReport();
    const Uuid id = Uuid::random();
    const RecordedScan scan = RecordedScan::fromReport(report, date, id);
    EXPECT_EQ(scan.id, id);
    EXPECT_EQ(scan.date, date);
    EXPECT_EQ(scan.repositoryName, report.repositoryName);
    EXPECT_EQ(scan.repositoryPath, report.repositoryPath);
    EXPECT_EQ(scan.total, report.total);
}

TEST(RecordedScanTest, keepsTheRowsInTheirOrder)
{
    const RecordedScan scan = RecordedScan::fromReport(sampleReport(), date, Uuid::random());
    EXPECT_EQ(scan.categories,
              (std::vector<RecordedCategory>{{.name = "System prompt", .tokens = 14'210},
                                             {.name = "Unattributed", .tokens = 12'632},
                                             {.name = "Tools", .tokens = 812}}));
}

TEST(RecordedScanTest, makesCategoryNamesSafeForStorage)
{
    ScanReport report = sampleReport();
    report.rows[0].name = "  /home/someone/secret.txt ";
    report.rows[1].name = " Tools ";
    report.rows[2].name = "notes.md";
    const RecordedScan scan = RecordedScan::fromReport(report, date, Uuid::random());
    EXPECT_EQ(scan.categories[0].name, "Other (name withheld)");
    EXPECT_EQ(scan.categories[1].name, "Tools");
    EXPECT_EQ(scan.categories[2].name, "Other (name withheld)");
}

TEST(RecordedScanTest, recordsAReportWithoutRows)
{
    ScanReport report = sampleReport();
    report.rows.clear();
    EXPECT_TRUE(RecordedScan::fromReport(report, date, Uuid::random()).categories.empty());
}

TEST(RecordedScanTest, derivesTheBandFromTheTotal)
{
    EXPECT_EQ(RecordedScanBuilder().ofTotal(29'999).build().band(), OpinionBand::lean);
    EXPECT_EQ(RecordedScanBuilder().ofTotal(30'000).build().band(), OpinionBand::heavy);
    EXPECT_EQ(RecordedScanBuilder().ofTotal(60'001).build().band(), OpinionBand::excessive);
}

} // namespace Loadwick
