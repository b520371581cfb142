#include "history/ScanComparison.h"

#include <limits>

#include <gtest/gtest.h>

#include "support/RecordedScanBuilder.h"

namespace Loadwick {
namespace {

using Side = CategoryChange::Side;

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

RecordedScanBuilder scan()
{
    return RecordedScanBuilder().ofTotal(30'000);
}

std::vector<std::string> namesOf(const ScanComparison &comparison)
{
    std::vector<std::string> names;
    for (const CategoryChange &change : comparison.changes)
        names.emplace_back(change.name);
    return names;
}

} // namespace

TEST(ScanComparisonTest, comparesTheTotals)
{
    const auto comparison =
        ScanComparison::between(scan().ofTotal(31'000).build(), scan().ofTotal(28'500).build());
    EXPECT_EQ(comparison.totalBefore, 31'000);
    EXPECT_EQ(comparison.totalAfter, 28'500);
    EXPECT_EQ(comparison.totalDifference(), -2'500);
}

TEST(ScanComparisonTest, listsTheLargestDifferenceFirstWhateverItsSign)
{
    const auto before = scan().withCategory("b", 10).withCategory("a", 10).withCategory("c", 10);
    const auto after = scan().withCategory("a", 15).withCategory("b", 5).withCategory("c", 1);
    const auto comparison = ScanComparison::between(before.build(), after.build());
    EXPECT_EQ(namesOf(comparison), (std::vector<std::string>{"c", "a", "b"}));
    EXPECT_EQ(comparison.changes[0].difference(), -9);
    EXPECT_EQ(comparison.changes[1].difference(), 5);
}

TEST(ScanComparisonTest, countsWhatDidNotChange)
{
    const auto before = scan().withCategory("a", 10).withCategory("b", 7).withCategory("c", 1);
    const auto after = scan().withCategory("a", 10).withCategory("b", 7).withCategory("c", 2);
    const auto comparison = ScanComparison::between(before.build(), after.build());
    EXPECT_EQ(namesOf(comparison), std::vector<std::string>{"c"});
    EXPECT_EQ(comparison.unchangedCount, 2U);
    EXPECT_EQ(comparison.unchangedTokens, 17);
}

TEST(ScanComparisonTest, tellsACategoryOfOneScanFromAnEmptyOne)
{
    const auto before = scan().withCategory("gone", 0).withCategory("kept", 0);
    const auto after = scan().withCategory("new", 3).withCategory("kept", 0);
    const auto comparison = ScanComparison::between(before.build(), after.build());
    ASSERT_EQ(namesOf(comparison), (std::vector<std::string>{"new", "gone"}));
    EXPECT_TRUE(comparison.changes[0].isOnlyIn(Side::after));
    EXPECT_FALSE(comparison.changes[0].isOnlyIn(Side::before));
    EXPECT_TRUE(comparison.changes[1].isOnlyIn(Side::before));
    EXPECT_EQ(comparison.unchangedCount, 1U);
}

TEST(ScanComparisonTest, sumsCategoriesOfOneScanThatShareAName)
{
    const auto before = scan().withCategory("a", 10).withCategory("a", 2);
    const auto after = scan().withCategory("a", 13);
    const auto comparison = ScanComparison::between(before.build(), after.build());
    ASSERT_EQ(comparison.changes.size(), 1U);
    EXPECT_EQ(comparison.changes[0].before, 12);
    EXPECT_EQ(comparison.changes[0].difference(), 1);
}

TEST(ScanComparisonTest, isOneCategoryWhereOneScanHasOnlyItsExcess)
{
    const RecordedScan whole = scan().withCategory("Skills", 900).build();
    const RecordedScan excess = scan().withCategory("Skills (beyond local estimate)", 400).build();
    EXPECT_EQ(ScanComparison::between(whole, excess).changes,
              std::vector{(CategoryChange{"Skills", 900, 400, Side::after})});
    EXPECT_EQ(ScanComparison::between(excess, whole).changes,
              std::vector{(CategoryChange{"Skills", 400, 900, Side::before})});
}

TEST(ScanComparisonTest, keepsAnExcessApartWhereItsCategoryIsInTheSameScan)
{
    const auto both =
        scan().withCategory("Skills", 1).withCategory("Skills (beyond local estimate)", 2);
    const RecordedScan whole = scan().withCategory("Skills", 1).build();
    const RecordedScan other = scan().withCategory("Tools", 1).build();
    EXPECT_EQ(ScanComparison::between(both.build(), whole).changes,
              std::vector{(CategoryChange{"Skills (beyond local estimate)", 2, {}, {}})});
    EXPECT_EQ(ScanComparison::between(whole, both.build()).changes,
              std::vector{(CategoryChange{"Skills (beyond local estimate)", {}, 2, {}})});
    EXPECT_EQ(ScanComparison::between(other, both.build()).changes.size(), 3U);
}

TEST(ScanComparisonTest, keepsAnExcessThatBothScansHave)
{
    const RecordedScan before = scan().withCategory("S (beyond local estimate)", 1).build();
    const RecordedScan after = scan().withCategory("S (beyond local estimate)", 2).build();
    EXPECT_EQ(namesOf(ScanComparison::between(before, after)),
              std::vector<std::string>{"S (beyond local estimate)"});
}

TEST(ScanComparisonTest, hasTheTotalsAloneWhereAScanHasNoCategories)
{
    const RecordedScan none = scan().ofTotal(1).build();
    const RecordedScan some = scan().ofTotal(3).withCategory("a", 1).build();
    for (const auto &comparison : {ScanComparison::between(none, some), //
                                   ScanComparison::between(some, none)}) {
        EXPECT_FALSE(comparison.hasCategories);
        EXPECT_TRUE(comparison.changes.empty());
        EXPECT_NE(comparison.totalDifference(), 0);
    }
}

TEST(ScanComparisonTest, ordersDifferencesUpToTheLargest)
{
    const auto before = scan().withCategory("a", largest).withCategory("b", 0);
    const auto after = scan().withCategory("a", -1).withCategory("b", largest);
    EXPECT_EQ(namesOf(ScanComparison::between(before.build(), after.build())),
              (std::vector<std::string>{"a", "b"}));
}

TEST(ScanComparisonTest, endsTheProgramWhenADifferenceOverflows)
{
    const RecordedScan before = scan().ofTotal(-2).withCategory("a", -2).build();
    const RecordedScan after = scan().ofTotal(largest).withCategory("a", largest).build();
    EXPECT_DEATH((void)ScanComparison::between(before, after).totalDifference(),
                 "does not fit 64 bits");
    EXPECT_DEATH((void)ScanComparison::between(before, after).changes.at(0).difference(),
                 "does not fit 64 bits");
}

} // namespace Loadwick
