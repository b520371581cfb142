#include "process/WaitGroup.h"

#include <thread>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(WaitGroupTest, isDoneWhileNobodyEntered)
{
    WaitGroup group;
    EXPECT_TRUE(group.waitUntil(deadlineAfter(0)));
}

TEST(WaitGroupTest, isDoneWhenEveryoneHasLeft)
{
    WaitGroup group;
    group.enter();
    group.enter();
    std::thread first([&] { group.leave(); });
    std::thread second([&] { group.leave(); });
    EXPECT_TRUE(group.waitUntil(deadlineAfter(60)));
    first.join();
    second.join();
}

TEST(WaitGroupTest, stopsWaitingAtItsDeadline)
{
    WaitGroup group;
    group.enter();
    const Deadline deadline = deadlineAfter(0.02);
    EXPECT_FALSE(group.waitUntil(deadline));
    EXPECT_GE(std::chrono::steady_clock::now(), deadline);
}

} // namespace Loadwick
