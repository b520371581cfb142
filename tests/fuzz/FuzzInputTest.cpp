#include "fuzz/FuzzInput.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(FuzzInputTest, takesLinesAndThenTheRest)
{
    FuzzInput input("one\n\nthree|four");
    EXPECT_EQ(input.takeLine(), "one");
    EXPECT_EQ(input.takeLine(), "");
    EXPECT_EQ(input.takeUpTo('|'), "three");
    EXPECT_FALSE(input.isAtEnd());
    EXPECT_EQ(input.rest(), "four");
    EXPECT_EQ(input.takeLine(), "four");
    EXPECT_TRUE(input.isAtEnd());
    EXPECT_EQ(input.takeLine(), "");
}

TEST(FuzzInputTest, takesAPositiveOrNegativeInteger)
{
    FuzzInput input("12 -7x");
    EXPECT_EQ(input.takeInteger(99), 12);
    EXPECT_EQ(input.takeUpTo(' '), "");
    EXPECT_EQ(input.takeInteger(99), -7);
    EXPECT_EQ(input.takeInteger(99), 0);
    EXPECT_EQ(input.rest(), "x");
}

TEST(FuzzInputTest, foldsAnIntegerBeyondTheLimitIntoTheRange)
{
    EXPECT_EQ(FuzzInput("100").takeInteger(99), 0);
    EXPECT_EQ(FuzzInput("-101").takeInteger(99), -1);
    for (const std::int64_t limit : {std::int64_t{9}, FuzzInput::largestLimit}) {
        const std::int64_t value = FuzzInput("99999999999999999999999999").takeInteger(limit);
        EXPECT_GE(value, 0);
        EXPECT_LE(value, limit);
    }
}

} // namespace Loadwick
