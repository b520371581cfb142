#include "process/Deadline.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace Loadwick {

using namespace std::chrono_literals;

TEST(DeadlineTest, liesInTheFuture)
{
    const Deadline before = std::chrono::steady_clock::now();
    EXPECT_GE(deadlineAfter(0.25), before + 250ms);
    EXPECT_LT(deadlineAfter(0.25), before + 60s);
}

TEST(DeadlineTest, treatsAnInvalidDurationAsNow)
{
    const auto isNow = [](double seconds) {
        const Deadline before = std::chrono::steady_clock::now();
        const Deadline deadline = deadlineAfter(seconds);
        return before <= deadline && deadline <= std::chrono::steady_clock::now();
    };
    EXPECT_TRUE(isNow(0));
    EXPECT_TRUE(isNow(-5));
    EXPECT_TRUE(isNow(std::nan("")));
}

TEST(DeadlineTest, neverOverflows)
{
    const Deadline inAWeek = std::chrono::steady_clock::now() + 24h * 7;
    EXPECT_GT(deadlineAfter(1e300), inAWeek);
    EXPECT_GT(deadlineAfter(std::numeric_limits<double>::infinity()), inAWeek);
}

TEST(DeadlineTest, isCountedInMillisecondsUpToALimit)
{
    EXPECT_EQ(millisecondsUntil(deadlineAfter(100), 50ms), 50);
    EXPECT_EQ(millisecondsUntil(std::chrono::steady_clock::now() - 1s, 50ms), 0);
    const int rounded = millisecondsUntil(deadlineAfter(0.0105), 50ms);
    EXPECT_GE(rounded, 0);
    EXPECT_LE(rounded, 11);
}

} // namespace Loadwick
