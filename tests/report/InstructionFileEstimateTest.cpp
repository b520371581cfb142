#include "report/InstructionFileEstimate.h"

#include <limits>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(InstructionFileEstimateTest, takesFourBytesForAToken)
{
    const auto tokens = InstructionFileEstimate::estimatedTokensForByteCount;
    EXPECT_EQ(tokens(4'000), 1'000);
    EXPECT_EQ(tokens(8), 2);
}

TEST(InstructionFileEstimateTest, roundsUp)
{
    const auto tokens = InstructionFileEstimate::estimatedTokensForByteCount;
    for (const std::int64_t byteCount : {1, 2, 3, 4})
        EXPECT_EQ(tokens(byteCount), 1) << byteCount;
    EXPECT_EQ(tokens(5), 2);
    EXPECT_EQ(tokens(4'001), 1'001);
}

TEST(InstructionFileEstimateTest, givesNothingForLessThanOneByte)
{
    const auto tokens = InstructionFileEstimate::estimatedTokensForByteCount;
    EXPECT_EQ(tokens(0), 0);
    EXPECT_EQ(tokens(-1), 0);
    EXPECT_EQ(tokens(std::numeric_limits<std::int64_t>::min()), 0);
}

TEST(InstructionFileEstimateTest, survivesTheLargestByteCount)
{
    EXPECT_EQ(InstructionFileEstimate::estimatedTokensForByteCount(
                  std::numeric_limits<std::int64_t>::max()),
              std::int64_t{1} << 61);
}

TEST(InstructionFileEstimateTest, computesItsTokensFromItsBytes)
{
    const InstructionFileEstimate expected{"/a/CLAUDE.md", 10, 3};
    EXPECT_EQ(InstructionFileEstimate::fromPath("/a/CLAUDE.md", 10), expected);
}

} // namespace Loadwick
