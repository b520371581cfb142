#include "process/ReaderDeadline.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(ReaderDeadlineTest, lastsWithoutLimitUntilItIsSet)
{
    const ReaderDeadline deadline;
    EXPECT_EQ(deadline.expiry(), std::nullopt);
    EXPECT_FALSE(deadline.hasPassed());
}

TEST(ReaderDeadlineTest, passesAtItsMoment)
{
    ReaderDeadline deadline;
    deadline.setExpiry(deadlineAfter(60));
    EXPECT_FALSE(deadline.hasPassed());
    deadline.setExpiry(deadlineAfter(0));
    EXPECT_TRUE(deadline.hasPassed());
}

} // namespace Loadwick
