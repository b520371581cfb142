#include "process/DeathWatch.h"

#include <csignal>
#include <memory>
#include <optional>
#include <utility>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "process/ChildProcess.h"
#include "support/HostileChild.h"

namespace Loadwick {

namespace {

/// A program that starts a child, tells its process ID, and then does nothing.
class Starter
{
public:
    explicit Starter(const char *verb) : m_told(Pipe::open()), m_processID(fork())
    {
        if (m_processID == 0)
            start(verb);
        m_told.writeEnd.reset();
        pid_t child = 0;
        EXPECT_EQ(read(m_told.readEnd.number(), &child, sizeof child), ssize_t{sizeof child});
        m_child = child;
    }
    ~Starter() { die(); }
    Starter(const Starter &) = delete;
    Starter &operator=(const Starter &) = delete;

    [[nodiscard]] pid_t child() const { return m_child; }

    void die()
    {
        if (m_processID > 0) {
            kill(m_processID, SIGKILL);
            waitpid(std::exchange(m_processID, 0), nullptr, 0);
        }
    }

private:
    [[noreturn]] void start(const char *verb)
    {
        const auto shutdown = std::make_shared<Shutdown>(std::make_unique<DeathWatch>(1));
        const ChildProcess started = startHostileChild({verb}, shutdown);
        const pid_t child = started.processID();
        [[maybe_unused]] const ssize_t told = write(m_told.writeEnd.number(), &child, sizeof child);
        for (;;)
            pause();
    }

    Pipe m_told;
    pid_t m_processID;
    pid_t m_child = 0;
};

/// How the orphaned child ended, as its new parent learns it; nothing while it runs.
std::optional<int> signalThatEnded(pid_t child)
{
    int status = 0;
    return waitpid(child, &status, WNOHANG) == child ? std::optional(WTERMSIG(status))
                                                     : std::nullopt;
}

/// The signal that ends the child of a killed program; 0 if none does in time.
int endingSignal(const char *verb)
{
    prctl(PR_SET_CHILD_SUBREAPER, 1); // its orphans become ours
    Starter program(verb);
    EXPECT_EQ(kill(program.child(), 0), 0);
    program.die();
    const Deadline deadline = deadlineAfter(20);
    std::optional<int> signal;
    while (!signal && std::chrono::steady_clock::now() < deadline) {
        usleep(10'000);
        signal = signalThatEnded(program.child());
    }
    return signal.value_or(0);
}

} // namespace

// First, while this process has no other children.
TEST(DeathWatchTest, startsNothingWithoutAGroup)
{
    DeathWatch watch;
    watch.remove(2'000'000'000);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "there is a child";
}

TEST(DeathWatchTest, isReadyBeforeAnAnnouncedChildStarts)
{
    Shutdown shutdown(std::make_unique<DeathWatch>());
    ASSERT_TRUE(shutdown.announce());
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), 0) << "there is no shell";
}

// As the name of a group, 1 would be every process.
TEST(DeathWatchTest, listsNoGroupThatNamesOthers)
{
    DeathWatch watch(0);
    watch.prepare();
    for (const pid_t group : {1, 0, -1})
        watch.add(group);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), 0) << "the shell is its only child";
}

TEST(DeathWatchTest, asksTheChildrenOfAKilledProgramToEnd)
{
    EXPECT_EQ(endingSignal("close-output"), SIGTERM);
}

TEST(DeathWatchTest, killsTheChildrenThatIgnoreIt)
{
    EXPECT_EQ(endingSignal("ignore-term"), SIGKILL);
}

TEST(DeathWatchTest, leavesTheChildrenOfALivingProgramAlone)
{
    auto watch = std::make_unique<DeathWatch>(1);
    const ChildProcess child = startHostileChild({"ignore-term"});
    watch->prepare();
    watch->add(child.processID());
    watch.reset();
    EXPECT_FALSE(child.waitUntil(deadlineAfter(0.2)));
}

TEST(DeathWatchTest, leavesTheEndOfAChildToALivingProgram)
{
    const auto shutdown = std::make_shared<Shutdown>(std::make_unique<DeathWatch>(0));
    ChildProcess child = startHostileChild({"trap-term", "7"}, shutdown);
    child.signalGroup(SIGTERM);
    EXPECT_EQ(child.reap(), (ChildProcess::Ending{7, false}));
}

TEST(DeathWatchTest, forgetsARemovedGroup)
{
    const ChildProcess child = startHostileChild({"ignore-term"});
    const pid_t program = fork();
    if (program == 0) {
        DeathWatch watch(0);
        watch.prepare();
        watch.add(child.processID());
        watch.remove(child.processID());
        kill(getpid(), SIGKILL);
    }
    waitpid(program, nullptr, 0);
    EXPECT_FALSE(child.waitUntil(deadlineAfter(0.5)));
}

} // namespace Loadwick
