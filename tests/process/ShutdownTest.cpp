#include "process/Shutdown.h"

#include <atomic>
#include <thread>

#include <csignal>

#include <gtest/gtest.h>

#include "process/ChildProcess.h"
#include "support/HostileChild.h"
#include "support/Stopwatch.h"

namespace Loadwick {

using namespace std::chrono_literals;

namespace {

ChildProcess startSilentChild(const std::shared_ptr<Shutdown> &shutdown)
{
    return ChildProcess::start({hostileChildPath(), {"close-output"}, {}, std::nullopt}, {},
                               shutdown);
}

// No process can have this number, so signals to its group go nowhere.
constexpr pid_t nobody = 2'000'000'000;

bool isListed(Shutdown &shutdown)
{
    const Stopwatch watch;
    shutdown.stopChildren(20ms);
    return watch.seconds() >= 0.02;
}

} // namespace

TEST(ShutdownTest, sleepsForTheWholeDurationUnlessTheEndIsRequested)
{
    Shutdown shutdown;
    const Stopwatch watch;
    EXPECT_FALSE(shutdown.waitFor(30ms));
    EXPECT_GE(watch.seconds(), 0.03);
}

TEST(ShutdownTest, wakesEveryWaitNowAndLater)
{
    Shutdown shutdown;
    std::atomic<int> woken = 0;
    const auto wait = [&] { woken += shutdown.waitFor(60s) ? 1 : 0; };
    std::thread first(wait);
    std::thread second(wait);
    EXPECT_FALSE(shutdown.isRequested());
    shutdown.request();
    first.join();
    second.join();
    EXPECT_EQ(woken, 2);
    EXPECT_TRUE(shutdown.waitFor(60s));
    EXPECT_TRUE(shutdown.isRequested());
}

TEST(ShutdownTest, rejectsAChildOnceTheEndWasRequested)
{
    Shutdown shutdown;
    EXPECT_TRUE(shutdown.announce());
    shutdown.request();
    EXPECT_FALSE(shutdown.announce());
    EXPECT_FALSE(shutdown.add(4'000'000));
    shutdown.withdraw();
}

TEST(ShutdownTest, returnsImmediatelyWithoutChildren)
{
    Shutdown shutdown;
    const Stopwatch watch;
    shutdown.stopChildren(60s);
    EXPECT_LT(watch.seconds(), 30);
    EXPECT_TRUE(shutdown.isRequested());
}

TEST(ShutdownTest, waitsForAnAnnouncedChild)
{
    Shutdown shutdown;
    ASSERT_TRUE(shutdown.announce());
    std::thread starter([&] {
        std::this_thread::sleep_for(30ms);
        shutdown.withdraw();
    });
    const Stopwatch watch;
    shutdown.stopChildren(60s);
    EXPECT_GE(watch.seconds(), 0.02);
    EXPECT_LT(watch.seconds(), 30);
    starter.join();
}

TEST(ShutdownTest, asksChildrenToEndAndReturnsWhenTheyAreReaped)
{
    const auto shutdown = std::make_shared<Shutdown>();
    std::thread owner([child = startSilentChild(shutdown)]() mutable {
        EXPECT_TRUE(child.waitUntil(deadlineAfter(60)));
        EXPECT_EQ(child.reap(), (ChildProcess::Ending{SIGTERM, true}));
    });
    const Stopwatch watch;
    shutdown->stopChildren(60s);
    EXPECT_LT(watch.seconds(), 30);
    owner.join();
}

TEST(ShutdownTest, killsAChildThatIgnoresTheRequest)
{
    const auto shutdown = std::make_shared<Shutdown>();
    ChildProcess child = startHostileChild({"ignore-term"}, shutdown);
    const Stopwatch watch;
    shutdown->stopChildren(100ms);
    EXPECT_GE(watch.seconds(), 0.1);
    ASSERT_TRUE(child.waitUntil(deadlineAfter(10)));
    EXPECT_EQ(child.reap(), (ChildProcess::Ending{SIGKILL, true}));
}

TEST(ShutdownTest, signalsAllGroupsButTheRemoved)
{
    const auto shutdown = std::make_shared<Shutdown>();
    const ChildProcess first = startSilentChild(nullptr);
    const ChildProcess second = startSilentChild(nullptr);
    ASSERT_TRUE(shutdown->add(first.processID()));
    ASSERT_TRUE(shutdown->add(second.processID()));
    shutdown->remove(first.processID());
    shutdown->stopChildren(0s);
    EXPECT_TRUE(second.waitUntil(deadlineAfter(60)));
    EXPECT_FALSE(first.waitUntil(deadlineAfter(0.05)));
}

TEST(ShutdownTest, neverSignalsItsOwnGroupOrEveryProcess)
{
    // The numbers 0 and 1 mean these to kill(). The signal 0 only asks whether it could be sent.
    EXPECT_FALSE(Shutdown::signalGroup(0, 0));
    EXPECT_FALSE(Shutdown::signalGroup(1, 0));
    EXPECT_FALSE(Shutdown::signalGroup(-2, 0));
    const ChildProcess child = startSilentChild(nullptr);
    EXPECT_TRUE(Shutdown::signalGroup(child.processID(), 0));
}

TEST(ShutdownTest, listsAChildUntilItsEntryLeaves)
{
    const auto shutdown = std::make_shared<Shutdown>();
    ShutdownEntry entry(shutdown);
    EXPECT_TRUE(entry.isAnnounced());
    EXPECT_TRUE(entry.enter(nobody));
    EXPECT_TRUE(isListed(*shutdown));
    entry.leave();
    const Stopwatch watch;
    shutdown->stopChildren(60s);
    EXPECT_LT(watch.seconds(), 30);
}

TEST(ShutdownTest, listsAChildWhoseEntryMoves)
{
    const auto shutdown = std::make_shared<Shutdown>();
    {
        ShutdownEntry entry(shutdown);
        ASSERT_TRUE(entry.enter(nobody));
        const ShutdownEntry moved = std::move(entry);
        EXPECT_TRUE(isListed(*shutdown));
    }
    const Stopwatch watch;
    shutdown->stopChildren(60s);
    EXPECT_LT(watch.seconds(), 30);
}

TEST(ShutdownTest, waitsForAChildThatIsBeingStarted)
{
    const auto shutdown = std::make_shared<Shutdown>();
    const ShutdownEntry entry(shutdown);
    EXPECT_TRUE(isListed(*shutdown));
}

TEST(ShutdownTest, rejectsAnEntryOnceTheEndWasRequested)
{
    const auto shutdown = std::make_shared<Shutdown>();
    ShutdownEntry early(shutdown);
    shutdown->request();
    EXPECT_FALSE(early.enter(nobody));
    EXPECT_FALSE(ShutdownEntry(shutdown).isAnnounced());
}

TEST(ShutdownTest, entryWorksWithoutAShutdown)
{
    ShutdownEntry entry(nullptr);
    EXPECT_TRUE(entry.isAnnounced());
    EXPECT_TRUE(entry.enter(nobody));
    entry.leave();
}

} // namespace Loadwick
