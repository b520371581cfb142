#include "support/HostileChild.h"

#include <csignal>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(HostileChildTest, doesWhatItsVerbSays)
{
    const Execution execution = ProbeRunner::execute(hostileLaunch({"print", "out", "err", "7"}));
    EXPECT_EQ(execution.standardOutput, "out");
    EXPECT_EQ(execution.standardError, "err");
    EXPECT_EQ(execution.exitCode, 7);
}

TEST(HostileChildTest, rejectsAnUnknownVerb)
{
    EXPECT_EQ(ProbeRunner::execute(hostileLaunch({"dance"})).exitCode, 2);
    EXPECT_EQ(ProbeRunner::execute(hostileLaunch({})).exitCode, 2);
}

TEST(HostileChildTest, returnsOnceTheChildIsReady)
{
    ChildProcess child = startHostileChild({"trap-term", "5"});
    child.signal(SIGTERM);
    EXPECT_EQ(child.reap(), (ChildProcess::Ending{5, false}));
}

} // namespace Loadwick
