#include "history/ScanComparison.h"

#include <algorithm>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "support/RecordedScanBuilder.h"

namespace Loadwick {
namespace {

using Names = std::set<std::string>;

Names namesOf(const RecordedScan &scan)
{
    Names names;
    for (const RecordedCategory &category : scan.categories)
        names.insert(category.name);
    return names;
}

/// The names that `left` has whole and `right` only beyond the estimate.
std::size_t countOfJoined(const Names &left, const Names &right)
{
    return static_cast<std::size_t>(
        std::count_if(left.begin(), left.end(), [&](const std::string &name) {
            const std::string excess = name + " (beyond local estimate)";
            return !right.contains(name) && right.contains(excess) && !left.contains(excess);
        }));
}

std::size_t countOfCategories(const Names &left, const Names &right)
{
    Names all = left;
    all.insert(right.begin(), right.end());
    return all.size() - countOfJoined(left, right) - countOfJoined(right, left);
}

} // namespace

/// Each seed is a pair of scans with few names, so that each kind of pair occurs.
class ScanComparisonPropertyTest : public testing::TestWithParam<unsigned>
{
protected:
    RecordedScan randomScan()
    {
        RecordedScanBuilder builder = RecordedScanBuilder().ofTotal(below(9));
        for (std::int64_t left = below(6); left > 0; --left)
            builder.withCategory("c" + std::to_string(below(3)) +
                                     (below(3) == 0 ? " (beyond local estimate)" : ""),
                                 below(4));
        return builder.build();
    }

private:
    std::int64_t below(std::int64_t limit)
    {
        return std::uniform_int_distribution<std::int64_t>(0, limit - 1)(m_random);
    }

    std::mt19937 m_random{GetParam()};
};

TEST_P(ScanComparisonPropertyTest, negatesEveryDifferenceWhenTheScansAreSwapped)
{
    const RecordedScan left = randomScan();
    const RecordedScan right = randomScan();
    const auto there = ScanComparison::between(left, right);
    const auto back = ScanComparison::between(right, left);
    EXPECT_EQ(there.totalDifference(), -back.totalDifference());
    ASSERT_EQ(there.changes.size(), back.changes.size());
    for (std::size_t index = 0; index < there.changes.size(); ++index) {
        EXPECT_EQ(there.changes[index].name, back.changes[index].name);
        EXPECT_EQ(there.changes[index].difference(), -back.changes[index].difference());
    }
    EXPECT_EQ(there.unchangedTokens, back.unchangedTokens);
}

TEST_P(ScanComparisonPropertyTest, findsNothingBetweenAScanAndItself)
{
    const RecordedScan scan = randomScan();
    const auto comparison = ScanComparison::between(scan, scan);
    EXPECT_TRUE(comparison.changes.empty());
    EXPECT_EQ(comparison.totalDifference(), 0);
}

TEST_P(ScanComparisonPropertyTest, accountsForEveryTokenOfBothScans)
{
    const RecordedScan left = randomScan();
    const RecordedScan right = randomScan();
    const auto comparison = ScanComparison::between(left, right);
    if (!comparison.hasCategories)
        return;
    std::int64_t before = comparison.unchangedTokens;
    std::int64_t after = comparison.unchangedTokens;
    for (const CategoryChange &change : comparison.changes) {
        before += change.before.value_or(0);
        after += change.after.value_or(0);
    }
    const auto sumOf = [](const RecordedScan &scan) {
        std::int64_t sum = 0;
        for (const RecordedCategory &category : scan.categories)
            sum += category.tokens;
        return sum;
    };
    EXPECT_EQ(before, sumOf(left));
    EXPECT_EQ(after, sumOf(right));
}

TEST_P(ScanComparisonPropertyTest, namesEveryCategoryOnce)
{
    const RecordedScan left = randomScan();
    const RecordedScan right = randomScan();
    const auto comparison = ScanComparison::between(left, right);
    if (!comparison.hasCategories)
        return;
    EXPECT_EQ(comparison.changes.size() + comparison.unchangedCount,
              countOfCategories(namesOf(left), namesOf(right)));
}

INSTANTIATE_TEST_SUITE_P(pairs, ScanComparisonPropertyTest, testing::Range(0U, 100U));

} // namespace Loadwick
