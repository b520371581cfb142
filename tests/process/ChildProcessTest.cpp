#include "process/ChildProcess.h"

#include <csignal>
#include <ctime>
#include <system_error>

#ifdef __linux__
#include <sys/prctl.h>
#include <sys/wait.h>
#endif

#include <gtest/gtest.h>

#include "samples/TemporaryFolder.h"
#include "support/HostileChild.h"
#include "support/ProcessCensus.h"
#include "support/Stopwatch.h"

namespace Loadwick {

using Ending = ChildProcess::Ending;

namespace {

ChildCommand hostileCommand(std::vector<std::string> arguments)
{
    return {hostileChildPath(), std::move(arguments), {}, std::nullopt};
}

ChildProcess startHostile(std::vector<std::string> arguments)
{
    return ChildProcess::start(hostileCommand(std::move(arguments)), {}, nullptr);
}

std::error_code startFailure(const ChildCommand &command,
                             const std::shared_ptr<Shutdown> &shutdown = nullptr)
{
    try {
        (void)ChildProcess::start(command, {}, shutdown);
    } catch (const std::system_error &error) {
        return error.code();
    }
    return {};
}

bool exists(pid_t process)
{
    return kill(process, 0) == 0;
}

} // namespace

TEST(ChildProcessTest, reportsTheExitStatus)
{
    ChildProcess child = startHostile({"print", "", "", "143"});
    EXPECT_EQ(child.reap(), (Ending{143, false}));
}

TEST(ChildProcessTest, reportsTheSignalThatEndedIt)
{
    ChildProcess child = startHostile({"close-output"});
    EXPECT_TRUE(child.isRunning());
    child.signal(SIGUSR1);
    EXPECT_EQ(child.reap(), (Ending{SIGUSR1, true}));
}

TEST(ChildProcessTest, waitsWithoutReaping)
{
    ChildProcess child = startHostile({"print", "", "", "0"});
    ASSERT_TRUE(child.waitUntil(deadlineAfter(10)));
    EXPECT_FALSE(child.isRunning());
    EXPECT_TRUE(exists(child.processID()));
    EXPECT_EQ(child.reap(), (Ending{0, false}));
}

TEST(ChildProcessTest, waitsUntilADeadline)
{
    const ChildProcess child = startHostile({"close-output"});
    const Stopwatch watch;
    EXPECT_FALSE(child.waitUntil(deadlineAfter(0.03)));
    EXPECT_GE(watch.seconds(), 0.03);
}

TEST(ChildProcessTest, waitsWithoutWorking)
{
    const ChildProcess child = startHostile({"close-output"});
    const std::clock_t before = std::clock();
    EXPECT_FALSE(child.waitUntil(deadlineAfter(0.5)));
    const double processorSeconds =
        static_cast<double>(std::clock() - before) / static_cast<double>(CLOCKS_PER_SEC);
    EXPECT_LT(processorSeconds, 0.05);
}

TEST(ChildProcessTest, countsAsRunningWhileStopped)
{
    const ChildProcess child = startHostile({"stop"});
    EXPECT_FALSE(child.waitUntil(deadlineAfter(0.05)));
    EXPECT_TRUE(child.isRunning());
}

TEST(ChildProcessTest, isKilledAndReapedOnDestruction)
{
    const ProcessCensus before = ProcessCensus::now();
    pid_t processID = 0;
    {
        const ChildProcess child = startHostile({"ignore-term"});
        processID = child.processID();
    }
    EXPECT_FALSE(exists(processID));
    EXPECT_TRUE(ProcessCensus::now().isWithin(before));
}

TEST(ChildProcessTest, hasOneOwnerAtATime)
{
    ChildProcess first = startHostile({"close-output"});
    const pid_t processID = first.processID();
    {
        const ChildProcess second = std::move(first);
        EXPECT_EQ(second.processID(), processID);
        EXPECT_TRUE(exists(processID));
    }
    EXPECT_FALSE(exists(processID));
    first.signal(SIGKILL);
    first.signalGroup(SIGKILL);
}

TEST(ChildProcessTest, isReapedInTheBackgroundOnceAbandoned)
{
    const ProcessCensus before = ProcessCensus::now();
    ChildProcess child = startHostile({"close-output"});
    const pid_t processID = child.processID();
    ChildProcess::abandon(std::move(child));
    EXPECT_TRUE(exists(processID));
    kill(processID, SIGKILL);
    EXPECT_TRUE(eventually([&] { return !exists(processID); }));
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().isWithin(before); }));
}

TEST(ChildProcessTest, reportsWhyItCouldNotStart)
{
    const TemporaryFolder folder;
    EXPECT_EQ(startFailure({folder.path() / "none", {}, {}, std::nullopt}),
              std::errc::no_such_file_or_directory);
    EXPECT_EQ(startFailure({folder.write("plain", "text"), {}, {}, std::nullopt}),
              std::errc::permission_denied);
    EXPECT_EQ(startFailure({folder.writeScript("broken", "\x7F"
                                                         "ELF truncated"),
                            {},
                            {},
                            {}}),
              std::errc::executable_format_error);
    EXPECT_EQ(startFailure({hostileChildPath(), {}, {}, folder.path() / "gone"}),
              std::errc::no_such_file_or_directory);
}

TEST(ChildProcessTest, rejectsTextsWithNul)
{
    using namespace std::string_literals;
    EXPECT_EQ(startFailure({hostileChildPath() + "\0x"s, {}, {}, std::nullopt}),
              std::errc::no_such_file_or_directory);
    EXPECT_EQ(startFailure({hostileChildPath(), {}, {}, "/\0x"s}),
              std::errc::no_such_file_or_directory);
    EXPECT_EQ(startFailure({hostileChildPath(), {"a\0b"s}, {}, std::nullopt}),
              std::errc::invalid_argument);
}

TEST(ChildProcessTest, leavesNothingBehindWhenItCannotStart)
{
    const ProcessCensus before = ProcessCensus::now();
    EXPECT_TRUE(startFailure({"/nowhere/command", {}, {}, std::nullopt}));
    EXPECT_TRUE(ProcessCensus::now().isWithin(before));
}

TEST(ChildProcessTest, doesNotStartOnceTheProgramEnds)
{
    const auto shutdown = std::make_shared<Shutdown>();
    shutdown->request();
    EXPECT_EQ(startFailure(hostileCommand({"close-output"}), shutdown),
              std::errc::operation_canceled);
}

TEST(ChildProcessTest, leavesTheShutdownListBeforeItIsReaped)
{
    const auto shutdown = std::make_shared<Shutdown>();
    ChildProcess child = ChildProcess::start(hostileCommand({"print", "", "", "0"}), {}, shutdown);
    (void)child.reap();
    const Stopwatch watch;
    shutdown->stopChildren(std::chrono::seconds(60));
    EXPECT_LT(watch.seconds(), 30);
}

TEST(ChildProcessTest, hasNoStatusWhereTheSystemReapsChildren)
{
    const auto usual = std::signal(SIGCHLD, SIG_IGN);
    ChildProcess child = startHostile({"print", "", "", "143"});
    EXPECT_TRUE(child.waitUntil(deadlineAfter(30)));
    EXPECT_EQ(child.reap(), (Ending{.status = 0, .isBySignal = false}));
    std::signal(SIGCHLD, usual);
}

TEST(ChildProcessTest, watchReportsItsEndRepeatedly)
{
    ChildProcess child = startHostileChild({"trap-term", "0"});
    const ExitWatch watch(child.processID());
    EXPECT_FALSE(watch.waitUntil(deadlineAfter(0.02)));
    child.signal(SIGTERM);
    EXPECT_TRUE(watch.waitUntil(deadlineAfter(30)));
    EXPECT_TRUE(watch.waitUntil(Deadline::min()));
    EXPECT_EQ(child.reap().status, 0);
}

TEST(ChildProcessTest, watchCountsAReapedChildAsEnded)
{
    ChildProcess child = startHostileChild({"print", "x", "", "0"});
    const pid_t processID = child.processID();
    const ExitWatch watch(processID);
    (void)child.reap();
    EXPECT_TRUE(watch.waitUntil(deadlineAfter(30)));
    EXPECT_TRUE(ExitWatch(processID).waitUntil(deadlineAfter(30)));
}

TEST(ChildProcessTest, isAskedToEndFirst)
{
    ChildProcess child = startHostileChild({"trap-term", "143"});
    ProcessTermination::terminateThenKill(child, 30);
    EXPECT_EQ(child.reap(), (Ending{143, false}));
}

TEST(ChildProcessTest, isKilledOnlyAfterTheGrace)
{
    ChildProcess child = startHostileChild({"ignore-term"});
    const Stopwatch watch;
    ProcessTermination::terminateThenKill(child, 0.15);
    EXPECT_GE(watch.seconds(), 0.15);
    EXPECT_EQ(child.reap(), (Ending{SIGKILL, true}));
}

TEST(ChildProcessTest, isKilledWhileStopped)
{
    ChildProcess child = startHostileChild({"ignore-term"});
    child.signal(SIGSTOP);
    ProcessTermination::terminateThenKill(child, 0.03);
    EXPECT_EQ(child.reap(), (Ending{SIGKILL, true}));
}

TEST(ChildProcessTest, isLeftAloneOnceItHasEnded)
{
    ChildProcess child = startHostileChild({"print", "x", "", "3"});
    ASSERT_TRUE(child.waitUntil(deadlineAfter(10)));
    const Stopwatch watch;
    ProcessTermination::terminateThenKill(child, 60);
    EXPECT_LT(watch.seconds(), 30);
    EXPECT_EQ(child.reap(), (Ending{3, false}));
}

TEST(ChildProcessTest, leavesBehindAGroupThatIsSwept)
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

#ifdef __linux__
TEST(ChildProcessTest, asksTheRestOfItsGroupToEndFirst)
{
    prctl(PR_SET_CHILD_SUBREAPER, 1); // its orphan becomes ours
    ChildProcess child = startHostileChild({"grandchild", "20000"});
    ASSERT_TRUE(child.waitUntil(deadlineAfter(10)));
    const pid_t group = child.processID();
    ProcessTermination::sweepGroup(child);
    EXPECT_EQ(child.reap(), (Ending{0, false}));
    int status = 0;
    EXPECT_GT(waitpid(-group, &status, 0), 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGTERM);
    prctl(PR_SET_CHILD_SUBREAPER, 0);
}
#endif

} // namespace Loadwick
