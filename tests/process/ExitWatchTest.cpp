#include "process/ExitWatch.h"

#include <csignal>

#include <gtest/gtest.h>

#include "support/HostileChild.h"

namespace Loadwick {

TEST(ExitWatchTest, seesAChildEndAsOftenAsItIsAsked)
{
    ChildProcess child = startHostileChild({"trap-term", "0"});
    const ExitWatch watch(child.processID());
    EXPECT_FALSE(watch.waitUntil(deadlineAfter(0.02)));
    child.signal(SIGTERM);
    EXPECT_TRUE(watch.waitUntil(deadlineAfter(30)));
    EXPECT_TRUE(watch.waitUntil(Deadline::min()));
    EXPECT_EQ(child.reap().status, 0);
}

TEST(ExitWatchTest, takesAChildThatIsNotOursForEnded)
{
    ChildProcess child = startHostileChild({"print", "x", "", "0"});
    const pid_t processID = child.processID();
    const ExitWatch watch(processID);
    (void)child.reap();
    EXPECT_TRUE(watch.waitUntil(deadlineAfter(30)));
    EXPECT_TRUE(ExitWatch(processID).waitUntil(deadlineAfter(30)));
}

} // namespace Loadwick
