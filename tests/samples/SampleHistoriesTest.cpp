#include "samples/SampleHistories.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "samples/StandIn.h"
#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace {

constexpr std::chrono::sys_seconds now{std::chrono::seconds(1'780'000'000)};

bool isOldestFirst(const std::vector<RecordedScan> &scans)
{
    return std::is_sorted(scans.begin(), scans.end(), [](const auto &left, const auto &right) {
        return left.date < right.date;
    });
}

std::size_t bandCount(const std::vector<RecordedScan> &scans)
{
    std::set<OpinionBand::Value> bands;
    for (const RecordedScan &scan : scans)
        bands.insert(scan.band());
    return bands.size();
}

std::size_t repositoryCount(const std::vector<RecordedScan> &scans)
{
    std::set<std::string> paths;
    for (const RecordedScan &scan : scans)
        paths.insert(scan.repositoryPath);
    return paths.size();
}

std::int64_t sumOfCategories(const RecordedScan &scan)
{
    std::int64_t sum = 0;
    for (const RecordedCategory &category : scan.categories)
        sum += category.tokens;
    return sum;
}

} // namespace

TEST(SampleHistoriesTest, haveTheScansAndRepositoriesThatTheirNamesPromise)
{
    std::map<std::string, std::pair<std::size_t, std::size_t>> sizes;
    for (const SampleHistory &history : SampleHistories::all())
        sizes[history.name] = {history.scans.size(), repositoryCount(history.scans)};
    EXPECT_EQ(sizes, (decltype(sizes){{"none", {0, 0}},
                                      {"one-scan", {1, 1}},
                                      {"two-equal-scans", {2, 1}},
                                      {"two-repositories", {7, 2}},
                                      {"30-scans", {30, 1}},
                                      {"5-repositories", {31, 5}},
                                      {"30-repositories", {200, 30}},
                                      {"clean-up", {2, 1}}}));
}

TEST(SampleHistoriesTest, areOrderedFromOldestToNewest)
{
    for (const SampleHistory &history : SampleHistories::all())
        EXPECT_TRUE(isOldestFirst(history.scans)) << history.name;
    const std::vector<RecordedScan> demonstration = SampleHistories::ofTenWeeks("/projects", now);
    EXPECT_TRUE(isOldestFirst(demonstration));
    EXPECT_LT(demonstration.back().date, now);
}

TEST(SampleHistoriesTest, coverAllBands)
{
    EXPECT_EQ(bandCount(SampleHistories::ofSize(200, 30, 1)), 3U);
    EXPECT_EQ(bandCount(SampleHistories::ofTenWeeks("/projects", now)), 3U);
}

TEST(SampleHistoriesTest, growIntoTheNextBandAndComeBack)
{
    const std::vector<RecordedScan> scans = SampleHistories::all().at(4).scans;
    EXPECT_EQ(scans.front().band(), OpinionBand::lean);
    EXPECT_EQ(scans.at(19).band(), OpinionBand::heavy);
    EXPECT_EQ(scans.at(20).band(), OpinionBand::lean);
    EXPECT_EQ(scans.back().band(), OpinionBand::heavy);
    for (const RecordedScan &scan : scans)
        EXPECT_LE(sumOfCategories(scan), scan.total);
}

TEST(SampleHistoriesTest, neverSplitMoreThanTheTotal)
{
    for (const RecordedScan &scan : SampleHistories::ofSize(200, 200, 50)) {
        EXPECT_EQ(scan.categories.size(), 50U);
        EXPECT_LE(sumOfCategories(scan), scan.total);
        EXPECT_GE(scan.total, 14'000);
    }
}

TEST(SampleHistoriesTest, haveUniqueCategoryNamesInEachScan)
{
    std::set<std::string> names;
    const std::vector<RecordedScan> scans = SampleHistories::ofSize(1, 1, 50);
    for (const RecordedCategory &category : scans.front().categories)
        names.insert(category.name);
    EXPECT_EQ(names.size(), 50U);
}

TEST(SampleHistoriesTest, haveTwoScansWithEqualTotals)
{
    const SampleHistory history = SampleHistories::all().at(2);
    EXPECT_EQ(history.scans.front().total, history.scans.back().total);
}

TEST(SampleHistoriesTest, splitEachTotalOfTheDemonstrationCompletely)
{
    for (const RecordedScan &scan : SampleHistories::ofTenWeeks("/projects", now))
        EXPECT_EQ(sumOfCategories(scan), scan.total) << scan.repositoryName;
}

// Otherwise each repository that is scanned during the demonstration would get rows of its own.
TEST(SampleHistoriesTest, nameCategoriesOfTheDemonstrationAsTheStandInDoes)
{
    const TemporaryFolder home;
    const StandIn standIn(home.path());
    standIn.install();
    const std::string answer = contentOf(standIn.executable());
    for (const RecordedScan &scan : SampleHistories::ofTenWeeks("/projects", now))
        for (const RecordedCategory &category : scan.categories)
            if (std::islower(static_cast<unsigned char>(category.name.front())) != 0) {
                EXPECT_NE(answer.find("SLAB " + category.name + " TOKENS"), std::string::npos)
                    << category.name;
            }
}

} // namespace Loadwick
