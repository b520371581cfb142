#include "report/ScanReport.h"

#include <limits>

#include <gtest/gtest.h>

#include "report/RepoSelection.h"
#include "support/EnumerationNames.h"
#include "text/OnLinux.h"
#include "text/TextLocale.h"

namespace Loadwick {

namespace {

const TextLocale english;

ScanReport sampleReport()
{
    return {.repositoryName = "webshop",
            .repositoryPath = "/home/ada/webshop",
            .total = 42'318,
            .totalSource = TotalSource::transcript,
            .sessionID = "8c1f",
            .resolvedCLIPath = "/usr/local/bin/claude",
            .duration = 12.04,
            .rows = {},
            .fileSet = InstructionFileSet::empty,
            .band = OpinionBand::heavy,
            .remainder = 0,
            .overAttributed = false,
            .categoriesSelfReported = true};
}

ScanReport reportWithRows(std::int64_t total, std::int64_t selfReported, std::int64_t local)
{
    ScanReport report = sampleReport();
    report.total = total;
    report.overAttributed = true;
    report.rows = {{"a", selfReported, Provenance::selfReported, 0},
                   {"b", local, Provenance::localEstimate, 1},
                   {"c", 1'000'000, Provenance::claudeReported, 2},
                   {"d", 1'000'000, Provenance::remainder, 3}};
    return report;
}

double shareOf(std::int64_t tokens, std::int64_t total)
{
    ScanReport report = sampleReport();
    report.total = total;
    return report.categoryShare({"a", tokens, Provenance::selfReported, 0});
}

ScanReport reportWithUnreadablePaths(std::size_t count)
{
    ScanReport report = sampleReport();
    report.fileSet.unreadablePaths.assign(count, "/x");
    return report;
}

const std::string unreadableRest =
    " could not be read, so the category and file estimates are lower than what is really loaded. "
    "The measured total is unaffected \u2014 it is reported by Claude. macOS may be blocking "
    "access: allow Loadwick under System Settings \u2192 Privacy & Security \u2192 Files & "
    "Folders, then scan again.";

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

TEST(ScanReportTest, hasFixedTexts)
{
    EXPECT_EQ(ScanReport::repositoryCategoryName, "Repository instructions");
    EXPECT_EQ(ScanReport::inheritedCategoryName, "Inherited project instructions");
    EXPECT_EQ(ScanReport::personalCategoryName, "Personal instructions");
    EXPECT_EQ(ScanReport::measurementNote,
              "Measured: one headless `claude -p` session (model sonnet) started in this folder; "
              "the number includes the probe prompt.");
    EXPECT_EQ(ScanReport::splitsEstimateNote,
              "The category and file splits below are estimates derived locally; only the total "
              "above is authoritative.");
}

TEST(ScanReportTest, returnsItsFilesByTierAndItsUnreadablePaths)
{
    ScanReport report = sampleReport();
    const auto file = InstructionFileEstimate::fromPath;
    report.fileSet = {{file("/r", 1)}, {file("/i", 2)}, {file("/p", 3)}, {"/u"}};
    EXPECT_EQ(report.files(), (std::vector{file("/r", 1), file("/i", 2), file("/p", 3)}));
    EXPECT_EQ(report.unreadablePaths(), std::vector<std::string>{"/u"});
}

TEST(ScanReportTest, clampsTheShareOfARow)
{
    EXPECT_DOUBLE_EQ(shareOf(250, 1'000), 0.25);
    EXPECT_EQ(shareOf(1'000, 1'000), 1.0);
    EXPECT_EQ(shareOf(1, 1), 1.0);
    EXPECT_EQ(shareOf(1'001, 1'000), 1.0);
    EXPECT_EQ(shareOf(0, 1'000), 0.0);
    EXPECT_EQ(shareOf(-5, 1'000), 0.0);
}

TEST(ScanReportTest, hasNoSharesOfATotalBelowOne)
{
    for (const std::int64_t total : {0, -1'000})
        for (const std::int64_t tokens : {-5, 0, 5})
            EXPECT_EQ(shareOf(tokens, total), 0.0) << tokens << " of " << total;
}

TEST(ScanReportTest, namesTheSourceOfTheTotal)
{
    ScanReport report = sampleReport();
    EXPECT_EQ(report.totalSourceLine(),
              "Total: authoritative \u2014 reported by Claude (source: session transcript: first "
              "assistant message usage).");
    report.totalSource = TotalSource::cliUsage;
    EXPECT_EQ(report.totalSourceLine(),
              "Total: authoritative \u2014 reported by Claude (source: CLI result usage block (no "
              "transcript found)).");
}

TEST(ScanReportTest, summarisesItselfInSixLines)
{
    const std::vector<std::string> expected{
        "Repository: webshop",
        "Total: 42,318 tokens \u2014 authoritative, reported by Claude (session transcript: first "
        "assistant message usage).",
        "Band: Heavy (this app's opinion).",
        "Category and file splits are local estimates; only the total is authoritative.",
        "Session: 8c1f \u00B7 12.0 seconds.",
        "Claude executable: /usr/local/bin/claude"};
    EXPECT_EQ(sampleReport().summaryLines(english), expected);
}

TEST(ScanReportTest, summarisesInTheLocalesFigures)
{
    ScanReport report = sampleReport();
    report.totalSource = TotalSource::cliUsage;
    report.band = OpinionBand::excessive;
    report.duration = 1234.56;
    const std::vector<std::string> lines = report.summaryLines({.numbers = "de_DE"});
    EXPECT_EQ(lines[1], "Total: 42.318 tokens \u2014 authoritative, reported by Claude (CLI result "
                        "usage block (no transcript found)).");
    EXPECT_EQ(lines[2], "Band: Excessive (this app's opinion).");
    EXPECT_EQ(lines[4], "Session: 8c1f \u00B7 1234.6 seconds.");
}

TEST(ScanReportTest, keepsSixLinesWithoutSessionAndExecutable)
{
    ScanReport report = sampleReport();
    report.sessionID.clear();
    report.resolvedCLIPath.clear();
    const std::vector<std::string> lines = report.summaryLines(english);
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[4], "Session:  \u00B7 12.0 seconds.");
    EXPECT_EQ(lines[5], "Claude executable: ");
}

TEST(ScanReportTest, notesHowManyFilesCouldNotBeRead)
{
    EXPECT_EQ(reportWithUnreadablePaths(0).unreadableFilesNote(), std::nullopt);
    EXPECT_EQ(reportWithUnreadablePaths(1).unreadableFilesNote(),
              "1 instruction file" + unreadableRest);
    EXPECT_EQ(reportWithUnreadablePaths(2).unreadableFilesNote(),
              "2 instruction files" + unreadableRest);
}

TEST(ScanReportTest, namesTheUnreadableFileWhosePermissionsMatterOnLinux)
{
    const auto note = [](std::vector<std::string> paths) {
        ScanReport report = sampleReport();
        report.fileSet.unreadablePaths = std::move(paths);
        return report.unreadableFilesPlatformNote();
    };
    const auto expected = [](const std::string &files) {
        return onLinux("On Linux there is no such setting: your user needs permission to read " +
                       files + ", and to enter every folder above. Then scan again.");
    };
    EXPECT_EQ(note({}), std::nullopt);
    EXPECT_EQ(note({"/a"}), expected("/a"));
    EXPECT_EQ(note({"/a", "/b"}), expected("/a and 1 other file"));
    EXPECT_EQ(note({"/a", "/b", "/c"}), expected("/a and 2 other files"));
}

TEST(ScanReportTest, countsUnreadableFilesWithoutGrouping)
{
    EXPECT_EQ(reportWithUnreadablePaths(1'500).unreadableFilesNote(),
              "1500 instruction files" + unreadableRest);
}

TEST(ScanReportTest, findsTheKindOfRowThatExceedsTheTotal)
{
    EXPECT_EQ(reportWithRows(10, 11, 10).overAttributionSource(),
              OverAttributionSource::selfReported);
    EXPECT_EQ(reportWithRows(10, 10, 11).overAttributionSource(),
              OverAttributionSource::localEstimate);
}

TEST(ScanReportTest, blamesTheCombinationUnlessOneKindAloneExceeds)
{
    EXPECT_EQ(reportWithRows(10, 6, 6).overAttributionSource(), OverAttributionSource::combined);
    EXPECT_EQ(reportWithRows(10, 10, 10).overAttributionSource(), OverAttributionSource::combined);
    EXPECT_EQ(reportWithRows(10, 11, 11).overAttributionSource(), OverAttributionSource::combined);
}

TEST(ScanReportTest, notesOverAttributionByItsSource)
{
    const std::string rest = " The bar's segments therefore exceed the measured total of 42,318 "
                             "tokens, and there is no hidden remainder to show.";
    EXPECT_EQ(
        reportWithRows(42'318, 50'000, 1).overAttributionNote(english),
        "The session's self-reported categories alone add up to more than its measured total." +
            rest);
    EXPECT_EQ(reportWithRows(42'318, 1, 50'000).overAttributionNote(english),
              "The local file estimates alone add up to more than the measured total." + rest);
    EXPECT_EQ(reportWithRows(42'318, 30'000, 30'000).overAttributionNote(english),
              "The attributed rows \u2014 the session's self-reported categories plus this app's "
              "local file estimates \u2014 add up to more than the measured total." +
                  rest);
}

TEST(ScanReportTest, formatsTheExceededTotalByTheLocale)
{
    const std::optional<std::string> note =
        reportWithRows(42'318, 50'000, 1).overAttributionNote({.numbers = "de_DE"});
    ASSERT_TRUE(note);
    EXPECT_NE(note->find("total of 42.318 tokens,"), std::string::npos);
}

TEST(ScanReportTest, notesNoOverAttributionUnlessFlagged)
{
    ScanReport report = reportWithRows(10, 11, 11);
    report.overAttributed = false;
    EXPECT_EQ(report.overAttributionNote(english), std::nullopt);
}

TEST(ScanReportTest, endsTheProgramWhenASumOverflows)
{
    ScanReport report = reportWithRows(10, std::numeric_limits<std::int64_t>::max(), 1);
    report.rows.push_back({"e", 1, Provenance::selfReported, 4});
    EXPECT_DEATH((void)report.overAttributionSource(), "does not fit 64 bits");
}

TEST(ScanReportTest, explainsFilesNextToATotalWithoutCategories)
{
    ScanReport report = sampleReport();
    report.categoriesSelfReported = false;
    report.fileSet.personalFiles = {InstructionFileEstimate::fromPath("/p", 1)};
    EXPECT_EQ(report.unreportedCategoryFilesNote(),
              "Claude did not self-report categories for this session, so the \"Startup context "
              "(categories not self-reported)\" row already carries the whole measured total. The "
              "instruction files below are local estimates of what makes up that total, not "
              "additional tokens on top of it.");
}

TEST(ScanReportTest, explainsNothingWithCategoriesOrWithoutFiles)
{
    ScanReport report = sampleReport();
    report.categoriesSelfReported = false;
    EXPECT_EQ(report.unreportedCategoryFilesNote(), std::nullopt);
    report.categoriesSelfReported = true;
    report.fileSet.repositoryFiles.assign(100, InstructionFileEstimate::fromPath("/r", 1));
    EXPECT_EQ(report.unreportedCategoryFilesNote(), std::nullopt);
}

TEST(ScanReportTest, comparesEveryField)
{
    EXPECT_EQ(sampleReport(), sampleReport());
    ScanReport other = sampleReport();
    other.fileSet.unreadablePaths = {"/x"};
    EXPECT_NE(sampleReport(), other);
}

TEST(ScanReportTest, namesTheSourcesOfOverAttribution)
{
    expectNames<OverAttributionSource>({"selfReported", "localEstimate", "combined"});
}

TEST(ScanReportTest, isBuiltFromSelectionProbeAndFiles)
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

TEST(ScanReportTest, attributesTheTotalToCategoriesAndFiles)
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

TEST(ScanReportTest, flagsOverAttribution)
{
    const ScanReport report =
        ScanReportBuilder::build(selection, probeOf(60, {{"Messages", 50}}), sampleFiles());
    EXPECT_TRUE(report.overAttributed);
    EXPECT_EQ(report.remainder, 0);
    EXPECT_EQ(report.overAttributionSource(), OverAttributionSource::localEstimate);
}

TEST(ScanReportTest, putsAnUnreportedTotalIntoOneRow)
{
    const ScanReport report = ScanReportBuilder::build(selection, probeOf(1'000), sampleFiles());
    ASSERT_EQ(report.rows.size(), 1U);
    EXPECT_EQ(report.rows[0].provenance, Provenance::claudeReported);
    EXPECT_FALSE(report.categoriesSelfReported);
    EXPECT_TRUE(report.unreportedCategoryFilesNote());
}

TEST(ScanReportTest, explainsATotalOfZero)
{
    ScanReport report = sampleReport();
    for (const std::int64_t total : {-1, 1, 27'654}) {
        report.total = total;
        EXPECT_FALSE(report.zeroTotalNote()) << total;
    }
    report.total = 0;
    EXPECT_EQ(report.zeroTotalNote(),
              "This session received no tokens; a hook may have blocked its prompt.");
}

TEST(ScanReportTest, classifiesTheTotal)
{
    EXPECT_EQ(bandOf(30'000), OpinionBand::heavy);
    EXPECT_EQ(bandOf(60'000), OpinionBand::heavy);
    EXPECT_EQ(bandOf(60'001), OpinionBand::excessive);
    EXPECT_EQ(bandOf(29'999), OpinionBand::lean);
    EXPECT_EQ(bandOf(0), OpinionBand::lean);
    EXPECT_EQ(bandOf(-1), OpinionBand::lean);
}

TEST(ScanReportTest, showsAnIllFormedPathWithReplacementCharacters)
{
    const RepoSelection strange = RepoSelection::fromUrl(std::filesystem::path("/code/caf\xE9"));
    const ScanReport report =
        ScanReportBuilder::build(strange, probeOf(1), InstructionFileSet::empty);
    EXPECT_EQ(report.repositoryName, "caf\uFFFD");
    EXPECT_EQ(report.repositoryPath, "/code/caf\uFFFD");
}

} // namespace Loadwick
