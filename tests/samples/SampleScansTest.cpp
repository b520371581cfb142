#include "samples/SampleScans.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

std::int64_t sumOfRows(const ScanReport &report)
{
    std::int64_t sum = 0;
    for (const SlabAttribution &row : report.rows)
        sum += row.tokens;
    return sum;
}

bool allBelow(const std::vector<InstructionFileEstimate> &files, const std::string &folder)
{
    return std::all_of(files.begin(), files.end(), [&](const InstructionFileEstimate &file) {
        return file.path.starts_with(folder + "/");
    });
}

std::set<std::string> pathsOf(const InstructionFileSet &files)
{
    std::set<std::string> paths;
    for (const InstructionFileEstimate &file : files.allFiles())
        paths.insert(file.path);
    return paths;
}

} // namespace

TEST(SampleScansTest, fallIntoTheBandInTheirNames)
{
    EXPECT_EQ(SampleScans::lean().report().band, OpinionBand::lean);
    EXPECT_EQ(SampleScans::heavy().report().band, OpinionBand::heavy);
    EXPECT_EQ(SampleScans::excessive().report().band, OpinionBand::excessive);
    EXPECT_EQ(SampleScans::excessive().report().total, 142'318);
}

TEST(SampleScansTest, addUpUnlessOverAttributed)
{
    for (const SampleScan &scan : SampleScans::all()) {
        const ScanReport report = scan.report();
        const bool isOverAttributed = scan.name == "over-attributed";
        EXPECT_EQ(report.overAttributed, isOverAttributed) << scan.name;
        EXPECT_EQ(sumOfRows(report) > report.total, isOverAttributed) << scan.name;
    }
}

TEST(SampleScansTest, showTheSpecialCaseInTheirNames)
{
    EXPECT_FALSE(SampleScans::notSelfReported().report().categoriesSelfReported);
    EXPECT_TRUE(SampleScans::notSelfReported().report().unreportedCategoryFilesNote());
    EXPECT_EQ(SampleScans::zero().report().total, 0);
    EXPECT_EQ(sumOfRows(SampleScans::zero().report()), 0);
    EXPECT_TRUE(SampleScans::zero().report().files().empty());
    EXPECT_TRUE(SampleScans::excessive().report().unreadableFilesNote());
    EXPECT_FALSE(SampleScans::lean().report().unreadableFilesNote());
}

TEST(SampleScansTest, haveDistinctNames)
{
    std::set<std::string> names;
    for (const SampleScan &scan : SampleScans::all())
        names.insert(scan.name);
    EXPECT_EQ(names.size(), 6U);
}

TEST(SampleScansTest, haveEachFileOnceInItsTiersFolder)
{
    for (const SampleScan &scan :
         {SampleScans::lean(), SampleScans::excessive(), SampleScans::ofSize(1, 1'000)}) {
        EXPECT_TRUE(allBelow(scan.files.repositoryFiles, scan.repositoryPath)) << scan.name;
        EXPECT_TRUE(allBelow(scan.files.inheritedFiles, "/home/someone/projects")) << scan.name;
        EXPECT_TRUE(allBelow(scan.files.personalFiles, "/home/someone/.claude")) << scan.name;
        EXPECT_EQ(pathsOf(scan.files).size(), scan.files.allFiles().size()) << scan.name;
    }
}

TEST(SampleScansTest, listUnreadablePathsInOrderIncludingAnEstimatedOne)
{
    const InstructionFileSet files = SampleScans::excessive().files;
    const std::vector<std::string> &unreadable = files.unreadablePaths;
    EXPECT_EQ(unreadable.size(), 4U);
    EXPECT_TRUE(std::is_sorted(unreadable.begin(), unreadable.end()));
    const std::set<std::string> estimated = pathsOf(files);
    EXPECT_EQ(std::count_if(unreadable.begin(), unreadable.end(),
                            [&](const std::string &path) { return estimated.contains(path); }),
              1);
}

TEST(SampleScansTest, haveTheRequestedSize)
{
    const ScanReport report = SampleScans::ofSize(200, 90).report();
    EXPECT_EQ(report.rows.size(), 200U + 3U + 1U);
    EXPECT_EQ(report.files().size(), 90U);
    EXPECT_FALSE(report.overAttributed);
    EXPECT_FALSE(SampleScans::ofSize(8'000, 10'000).report().overAttributed);
}

} // namespace Loadwick
