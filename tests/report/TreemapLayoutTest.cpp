#include "report/TreemapLayout.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace Loadwick {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double largest = std::numeric_limits<double>::max();
constexpr double smallest = std::numeric_limits<double>::denorm_min();

using Weights = std::vector<double>;
using Rects = std::vector<TreemapRect>;

bool counts(double weight)
{
    return weight > 0.0 && std::isfinite(weight);
}

/// The expected area of each rectangle, computed at a higher precision than the layout.
std::vector<double> sharesOf(const Weights &weights)
{
    long double sum = 0.0L;
    for (const double weight : weights)
        sum += counts(weight) ? static_cast<long double>(weight) : 0.0L;
    std::vector<double> shares;
    for (const double weight : weights)
        shares.push_back(counts(weight) ? static_cast<double>(weight / sum) : 0.0);
    return shares;
}

double overlap(const TreemapRect &left, const TreemapRect &right)
{
    const double width =
        std::min(left.x + left.width, right.x + right.width) - std::max(left.x, right.x);
    const double height =
        std::min(left.y + left.height, right.y + right.height) - std::max(left.y, right.y);
    return std::max(width, 0.0) * std::max(height, 0.0);
}

void expectInsideTheUnitSquare(const TreemapRect &rect)
{
    EXPECT_GE(rect.x, 0.0);
    EXPECT_GE(rect.y, 0.0);
    EXPECT_GE(rect.width, 0.0);
    EXPECT_GE(rect.height, 0.0);
    EXPECT_LE(rect.x + rect.width, 1.0 + 1e-9);
    EXPECT_LE(rect.y + rect.height, 1.0 + 1e-9);
}

void expectNoOverlap(const Rects &rects)
{
    for (std::size_t left = 0; left < rects.size(); ++left)
        for (std::size_t right = left + 1; right < rects.size(); ++right)
            ASSERT_LE(overlap(rects[left], rects[right]), 1e-12) << left << " and " << right;
}

void expectSoundMap(const Weights &weights)
{
    const Rects rects = TreemapLayout::layout(weights);
    const std::vector<double> shares = sharesOf(weights);
    ASSERT_EQ(rects.size(), weights.size());
    for (std::size_t index = 0; index < rects.size(); ++index) {
        ASSERT_NEAR(rects[index].area(), shares[index], 1e-9) << index;
        ASSERT_NO_FATAL_FAILURE(expectInsideTheUnitSquare(rects[index]));
        ASSERT_TRUE(counts(weights[index]) || rects[index] == TreemapRect::zero) << index;
    }
    expectNoOverlap(rects);
}

double worstRatio(const Rects &rects)
{
    double worst = 1.0;
    for (const TreemapRect &rect : rects)
        worst = std::max({worst, rect.width / rect.height, rect.height / rect.width});
    return worst;
}

/// Always the same numbers, on every machine: the distributions of the library are free to differ.
class RandomWeights
{
public:
    [[nodiscard]] std::size_t below(std::size_t limit) { return m_engine() % limit; }
    [[nodiscard]] double part() { return static_cast<double>(m_engine() >> 11) * 0x1p-53; }

    [[nodiscard]] Weights ofFiles(std::size_t count)
    {
        Weights weights(count);
        for (double &weight : weights)
            weight = std::floor(std::exp(part() * 12.0));
        return weights;
    }

    [[nodiscard]] Weights ofEverySize(std::size_t count)
    {
        Weights weights(count);
        for (double &weight : weights)
            weight = std::ldexp(0.5 + part(), static_cast<int>(below(2000)) - 1000);
        return weights;
    }

    [[nodiscard]] Weights withInvalidOnes(std::size_t count)
    {
        constexpr double invalid[] = {0.0,       -0.0,       -3.0,     infinite,
                                      -infinite, notANumber, smallest, largest};
        Weights weights = ofFiles(count);
        for (double &weight : weights)
            if (below(3) == 0)
                weight = invalid[below(std::size(invalid))];
        return weights;
    }

private:
    std::mt19937_64 m_engine{20'231};
};

} // namespace

TEST(TreemapLayoutTest, returnsAnEmptyListForAnEmptyList)
{
    EXPECT_TRUE(TreemapLayout::layout({}).empty());
}

TEST(TreemapLayoutTest, returnsAZeroRectangleForEachZero)
{
    EXPECT_EQ(TreemapLayout::layout(Weights{0.0, 0.0, 0.0}), Rects(3, TreemapRect::zero));
}

TEST(TreemapLayoutTest, givesTheWholeSquareToASingleWeight)
{
    for (const double weight : {1.0, 0.25, largest, smallest})
        EXPECT_EQ(TreemapLayout::layout(Weights{weight}), (Rects{{0.0, 0.0, 1.0, 1.0}})) << weight;
}

TEST(TreemapLayoutTest, stacksTwoEqualWeightsInOneColumn)
{
    EXPECT_EQ(TreemapLayout::layout(Weights{7.0, 7.0}),
              (Rects{{0.0, 0.0, 1.0, 0.5}, {0.0, 0.5, 1.0, 0.5}}));
}

TEST(TreemapLayoutTest, placesTheLargerFirstAndAnswersInInputOrder)
{
    EXPECT_EQ(TreemapLayout::layout(Weights{1.0, 3.0}),
              (Rects{{0.75, 0.0, 0.25, 1.0}, {0.0, 0.0, 0.75, 1.0}}));
}

TEST(TreemapLayoutTest, placesEqualWeightsInTheirOrder)
{
    EXPECT_EQ(TreemapLayout::layout(Weights{1.0, 1.0, 1.0, 1.0}), (Rects{{0.0, 0.0, 0.5, 0.5},
                                                                         {0.0, 0.5, 0.5, 0.5},
                                                                         {0.5, 0.0, 0.5, 0.5},
                                                                         {0.5, 0.5, 0.5, 0.5}}));
}

TEST(TreemapLayoutTest, laysABandAlongTheTopOfATallRemainder)
{
    // 4 of 6 take the left two thirds; the rest, a third wide and 1 high, is shared in bands.
    const Rects rects = TreemapLayout::layout(Weights{4.0, 1.0, 1.0});
    EXPECT_NEAR(rects[1].x, 2.0 / 3.0, 1e-15);
    EXPECT_NEAR(rects[1].y, 0.0, 1e-15);
    EXPECT_NEAR(rects[1].height, 0.5, 1e-15);
    EXPECT_NEAR(rects[2].x, 2.0 / 3.0, 1e-15);
    EXPECT_NEAR(rects[2].y, 0.5, 1e-15);
}

TEST(TreemapLayoutTest, treatsANegativeWeightAsZeroAndShiftsNoOther)
{
    EXPECT_EQ(TreemapLayout::layout(Weights{1.0, -2.0, 3.0}),
              (Rects{{0.75, 0.0, 0.25, 1.0}, TreemapRect::zero, {0.0, 0.0, 0.75, 1.0}}));
}

TEST(TreemapLayoutTest, treatsInfinityAndNaNAsZeroAndShiftsNoOther)
{
    EXPECT_EQ(TreemapLayout::layout(Weights{notANumber, 1.0, infinite, 3.0, -infinite}),
              (Rects{TreemapRect::zero,
                     {0.75, 0.0, 0.25, 1.0},
                     TreemapRect::zero,
                     {0.0, 0.0, 0.75, 1.0},
                     TreemapRect::zero}));
}

TEST(TreemapLayoutTest, sharesTheSquareAmongWeightsWhoseSumOverflows)
{
    EXPECT_EQ(TreemapLayout::layout(Weights{largest, largest}),
              (Rects{{0.0, 0.0, 1.0, 0.5}, {0.0, 0.5, 1.0, 0.5}}));
    expectSoundMap({largest, largest / 3.0, largest, 1.0, smallest});
}

TEST(TreemapLayoutTest, sharesTheSquareAmongTheSmallestWeights)
{
    expectSoundMap({smallest, smallest, smallest * 2.0});
}

TEST(TreemapLayoutTest, keepsANegligibleWeightInsideTheSquare)
{
    expectSoundMap({1.0, 1e-17, 1e-300, smallest});
    expectSoundMap({largest, smallest, smallest});
    expectSoundMap({1e18, 1.0, 1.0, 1.0});
}

TEST(TreemapLayoutTest, extendsARowOnlyUntilItsShapesGetWorse)
{
    // Two of 6 in 24 make squares; 4 would stretch them, so it begins a row of its own, and so on.
    const Rects rects = TreemapLayout::layout(Weights{6, 6, 4, 3, 2, 2, 1});
    EXPECT_EQ(rects[0], (TreemapRect{0.0, 0.0, 0.5, 0.5}));
    EXPECT_EQ(rects[1], (TreemapRect{0.0, 0.5, 0.5, 0.5}));
    EXPECT_EQ(rects[2].x, 0.5);
    EXPECT_EQ(rects[2].width, 0.5);
    EXPECT_NEAR(rects[2].height, 1.0 / 3.0, 1e-15);
    EXPECT_LT(worstRatio(rects), 4.2);
}

TEST(TreemapLayoutTest, keepsTilesOfSimilarWeightsNearlySquare)
{
    for (const std::size_t count : {2U, 3U, 10U, 97U, 600U})
        EXPECT_LE(worstRatio(TreemapLayout::layout(Weights(count, 5.0))), 3.0) << count;
}

TEST(TreemapLayoutTest, tilesTheSquareForRandomFiles)
{
    RandomWeights random;
    for (int round = 0; round < 3'000; ++round)
        ASSERT_NO_FATAL_FAILURE(expectSoundMap(random.ofFiles(random.below(40)))) << round;
}

TEST(TreemapLayoutTest, tilesTheSquareForRandomWeightsOfEverySize)
{
    RandomWeights random;
    for (int round = 0; round < 3'000; ++round)
        ASSERT_NO_FATAL_FAILURE(expectSoundMap(random.ofEverySize(random.below(25)))) << round;
}

TEST(TreemapLayoutTest, tilesTheSquareDespiteInvalidWeights)
{
    RandomWeights random;
    for (int round = 0; round < 3'000; ++round)
        ASSERT_NO_FATAL_FAILURE(expectSoundMap(random.withInvalidOnes(random.below(40)))) << round;
}

TEST(TreemapLayoutTest, tilesTheSquareForThousandsOfFiles)
{
    RandomWeights random;
    expectSoundMap(random.ofFiles(2'000));
}

TEST(TreemapLayoutTest, endsItsFirstColumnExactlyAtTheEdge)
{
    for (std::size_t count = 2; count <= 200; ++count) {
        double end = 0.0;
        for (const TreemapRect &rect : TreemapLayout::layout(Weights(count, 1.0)))
            if (rect.x == 0.0)
                end = std::max(end, rect.y + rect.height);
        EXPECT_EQ(end, 1.0) << count;
    }
}

TEST(TreemapLayoutTest, aRectangleHasTheAreaOfItsSides)
{
    constexpr TreemapRect rect{.x = 0.5, .y = 0.25, .width = 0.5, .height = 0.25};
    static_assert(rect.area() == 0.125);
}

TEST(TreemapLayoutTest, theZeroRectangleIsEmptyAtTheOrigin)
{
    EXPECT_EQ(TreemapRect::zero, (TreemapRect{0.0, 0.0, 0.0, 0.0}));
    EXPECT_EQ(TreemapRect::zero.area(), 0.0);
}

TEST(TreemapLayoutTest, rectanglesCompareAllFourFields)
{
    constexpr TreemapRect rect{1.0, 2.0, 3.0, 4.0};
    EXPECT_EQ(rect, (TreemapRect{1.0, 2.0, 3.0, 4.0}));
    for (const TreemapRect &other : {TreemapRect{0.0, 2.0, 3.0, 4.0},
                                     {1.0, 0.0, 3.0, 4.0},
                                     {1.0, 2.0, 0.0, 4.0},
                                     {1.0, 2.0, 3.0, 0.0}})
        EXPECT_NE(rect, other);
}

} // namespace Loadwick
