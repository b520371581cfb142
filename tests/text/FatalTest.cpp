#include "text/Fatal.h"

#include <limits>

#include <gtest/gtest.h>

namespace Loadwick {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

TEST(FatalTest, endsTheProgramWithItsMessage)
{
    EXPECT_DEATH(fatalError("the reason"), "^loadwick: the reason\n$");
}

TEST(FatalTest, addsUpToTheLargestInteger)
{
    EXPECT_EQ(checkedSum(largest - 1, 1), largest);
    EXPECT_EQ(checkedSum(-5, 3), -2);
    EXPECT_EQ(checkedDifference(3, 5), -2);
}

TEST(FatalTest, endsTheProgramOnOverflow)
{
    const char *const ofSum = "^loadwick: a token sum does not fit 64 bits\n$";
    const char *const ofDifference = "^loadwick: a token difference does not fit 64 bits\n$";
    EXPECT_DEATH((void)checkedSum(largest, 1), ofSum);
    EXPECT_DEATH((void)checkedSum(smallest, -1), ofSum);
    EXPECT_DEATH((void)checkedDifference(smallest, 1), ofDifference);
}

} // namespace Loadwick
