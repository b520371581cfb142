#include "process/ProcessTermination.h"

#include <csignal>

#include <gtest/gtest.h>

#include "support/HostileChild.h"
#include "support/ProcessCensus.h"
#include "support/Stopwatch.h"

namespace Loadwick {

using Ending = ChildProcess::Ending;

TEST(ProcessTerminationTest, asksFirst)
{
    ChildProcess child = startHostileChild({"trap-term", "143"});
    ProcessTermination::terminateThenKill(child, 30);
    EXPECT_EQ(child.reap(), (Ending{143, false}));
}

TEST(ProcessTerminationTest, killsAfterTheGraceAndNotBefore)
{
    ChildProcess child = startHostileChild({"ignore-term"});
    const Stopwatch watch;
    ProcessTermination::terminateThenKill(child, 0.15);
    EXPECT_GE(watch.seconds(), 0.15);
    EXPECT_EQ(child.reap(), (Ending{SIGKILL, true}));
}

TEST(ProcessTerminationTest, killsAChildThatIsStopped)
{
    ChildProcess child = startHostileChild({"ignore-term"});
    child.signal(SIGSTOP);
    ProcessTermination::terminateThenKill(child, 0.03);
    EXPECT_EQ(child.reap(), (Ending{SIGKILL, true}));
}

TEST(ProcessTerminationTest, leavesAChildThatHasEndedAlone)
{
    ChildProcess child = startHostileChild({"print", "x", "", "3"});
    ASSERT_TRUE(child.waitUntil(deadlineAfter(10)));
    const Stopwatch watch;
    ProcessTermination::terminateThenKill(child, 60);
    EXPECT_LT(watch.seconds(), 30);
    EXPECT_EQ(child.reap(), (Ending{3, false}));
}

TEST(ProcessTerminationTest, sweepsWhatIsLeftOfTheGroup)
{
    ChildProcess child = startHostileChild({"grandchild", "20000"});
    ASSERT_TRUE(child.waitUntil(deadlineAfter(10)));
    const pid_t group = child.processID();
    const Stopwatch watch;
    ProcessTermination::sweepGroup(child);
    EXPECT_GE(watch.seconds(), ProcessTermination::sweepGraceSeconds);
    EXPECT_EQ(child.reap(), (Ending{0, false}));
    EXPECT_TRUE(eventually([&] { return kill(-group, 0) != 0; }));
}

} // namespace Loadwick
