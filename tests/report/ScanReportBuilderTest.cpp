#include "report/ScanReportBuilder.h"

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

const RepoSelection selection{.url = "/home/ada/webshop", .displayName = "Shop"};

ProbeResult probeOf(std::int64_t total, std::vector<SelfReportedSlab> slabs = {})
{
    return {.sessionID = "8c1f",
            .authoritativeTotal = total,
            .totalSource = TotalSource::cliUsage,
            .selfReportedSlabs = std::move(slabs),
            .duration = 3.5,
            .resolvedCLIPath = "/bin/claude"};
}

InstructionFileSet sampleFiles()
{
    InstructionFileSet files;
    files.repositoryFiles = {InstructionFileEstimate::fromPath("/home/ada/webshop/CLAUDE.md", 400)};
    files.unreadablePaths = {"/home/ada/CLAUDE.md"};
    return files;
}

OpinionBand bandOf(std::int64_t total)
{
    return ScanReportBuilder::build(selection, probeOf(total), InstructionFileSet::empty).band;
}

} // namespace

TEST(ScanReportBuilderTest, takesOverWhatWasChosenMeasuredAndFound)
{
    const ScanReport report = ScanReportBuilder::build(selection, probeOf(1'000), sampleFiles());
    EXPECT_EQ(report.repositoryName, "Shop");
    EXPECT_EQ(report.repositoryPath, "/home/ada/webshop");
    EXPECT_EQ(report.total, 1'000);
    EXPECT_EQ(report.totalSource, TotalSource::cliUsage);
    EXPECT_EQ(report.sessionID, "8c1f");
    EXPECT_EQ(report.resolvedCLIPath, "/bin/claude");
    EXPECT_EQ(report.duration, 3.5);
    EXPECT_EQ(report.fileSet, sampleFiles());
}

TEST(ScanReportBuilderTest, attributesTheTotalToCategoriesAndFiles)
{
    const ScanReport report = ScanReportBuilder::build(
        selection, probeOf(1'000, {{"Memory files", 250}, {"Messages", 50}}), sampleFiles());
    const std::vector<SlabAttribution> expected{
        {"Unattributed", 700, Provenance::remainder, 3},
        {"Memory files (beyond local estimate)", 150, Provenance::selfReported, 0},
        {"Repository instructions", 100, Provenance::localEstimate, 2},
        {"Messages", 50, Provenance::selfReported, 1}};
    EXPECT_EQ(report.rows, expected);
    EXPECT_EQ(report.remainder, 700);
    EXPECT_FALSE(report.overAttributed);
    EXPECT_TRUE(report.categoriesSelfReported);
}

TEST(ScanReportBuilderTest, flagsOverAttribution)
{
    const ScanReport report =
        ScanReportBuilder::build(selection, probeOf(60, {{"Messages", 50}}), sampleFiles());
    EXPECT_TRUE(report.overAttributed);
    EXPECT_EQ(report.remainder, 0);
    EXPECT_EQ(report.overAttributionSource(), OverAttributionSource::localEstimate);
}

TEST(ScanReportBuilderTest, keepsAnUnreportedTotalInOneRow)
{
    const ScanReport report = ScanReportBuilder::build(selection, probeOf(1'000), sampleFiles());
    ASSERT_EQ(report.rows.size(), 1U);
    EXPECT_EQ(report.rows[0].provenance, Provenance::claudeReported);
    EXPECT_FALSE(report.categoriesSelfReported);
    EXPECT_TRUE(report.unreportedCategoryFilesNote());
}

TEST(ScanReportBuilderTest, bandsTheTotal)
{
    EXPECT_EQ(bandOf(30'000), OpinionBand::heavy);
    EXPECT_EQ(bandOf(60'000), OpinionBand::heavy);
    EXPECT_EQ(bandOf(60'001), OpinionBand::excessive);
    EXPECT_EQ(bandOf(29'999), OpinionBand::lean);
    EXPECT_EQ(bandOf(0), OpinionBand::lean);
    EXPECT_EQ(bandOf(-1), OpinionBand::lean);
}

TEST(ScanReportBuilderTest, writesAPathThatIsNotUtf8WithReplacementCharacters)
{
    const RepoSelection strange = RepoSelection::fromUrl(std::filesystem::path("/code/caf\xE9"));
    const ScanReport report =
        ScanReportBuilder::build(strange, probeOf(1), InstructionFileSet::empty);
    EXPECT_EQ(report.repositoryName, "caf\uFFFD");
    EXPECT_EQ(report.repositoryPath, "/code/caf\uFFFD");
}

} // namespace Loadwick
