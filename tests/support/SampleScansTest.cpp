#include "support/SampleScans.h"

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

} // namespace

TEST(SampleScansTest, areOfTheBandTheyAreNamedAfter)
{
    EXPECT_EQ(SampleScans::lean().report().band, OpinionBand::lean);
    EXPECT_EQ(SampleScans::heavy().report().band, OpinionBand::heavy);
    EXPECT_EQ(SampleScans::excessive().report().band, OpinionBand::excessive);
    EXPECT_EQ(SampleScans::excessive().report().total, 142'318);
}

TEST(SampleScansTest, addUpUnlessTheyAreOverAttributed)
{
    for (const SampleScan &scan : SampleScans::all()) {
        const ScanReport report = scan.report();
        const bool isOverAttributed = scan.name == "over-attributed";
        EXPECT_EQ(report.overAttributed, isOverAttributed) << scan.name;
        EXPECT_EQ(sumOfRows(report) > report.total, isOverAttributed) << scan.name;
    }
}

TEST(SampleScansTest, nameTheirOneSpecialThing)
{
    EXPECT_FALSE(SampleScans::notSelfReported().report().categoriesSelfReported);
    EXPECT_TRUE(SampleScans::notSelfReported().report().unreportedCategoryFilesNote());
    EXPECT_EQ(SampleScans::zero().report().total, 0);
    EXPECT_EQ(sumOfRows(SampleScans::zero().report()), 0);
    EXPECT_TRUE(SampleScans::zero().report().files().empty());
    EXPECT_TRUE(SampleScans::excessive().report().unreadableFilesNote());
    EXPECT_FALSE(SampleScans::lean().report().unreadableFilesNote());
}

TEST(SampleScansTest, haveNamesOfTheirOwn)
{
    std::set<std::string> names;
    for (const SampleScan &scan : SampleScans::all())
        names.insert(scan.name);
    EXPECT_EQ(names.size(), 6U);
}

TEST(SampleScansTest, areAlwaysTheSame)
{
    EXPECT_EQ(SampleScans::excessive().report(), SampleScans::excessive().report());
    EXPECT_EQ(SampleScans::ofSize(9, 9).report(), SampleScans::ofSize(9, 9).report());
}

TEST(SampleScansTest, growToTheSizeAsked)
{
    const ScanReport report = SampleScans::ofSize(200, 90).report();
    EXPECT_EQ(report.rows.size(), 200U + 3U + 1U);
    EXPECT_EQ(report.files().size(), 90U);
    EXPECT_FALSE(report.overAttributed);
    EXPECT_FALSE(SampleScans::ofSize(8'000, 10'000).report().overAttributed);
}

} // namespace Loadwick
