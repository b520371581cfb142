#include "process/ShutdownEntry.h"

#include <gtest/gtest.h>

#include "support/Stopwatch.h"

namespace Loadwick {

using namespace std::chrono_literals;

namespace {

// No process can have this number, so that signals to its group go nowhere.
constexpr pid_t nobody = 2'000'000'000;

bool isListed(Shutdown &shutdown)
{
    const Stopwatch watch;
    shutdown.stopChildren(20ms);
    return watch.seconds() >= 0.02;
}

} // namespace

TEST(ShutdownEntryTest, listsAChildUntilItLeaves)
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

TEST(ShutdownEntryTest, keepsItsPlaceWhenItMoves)
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

TEST(ShutdownEntryTest, holdsTheProgramWhileAChildIsBeingStarted)
{
    const auto shutdown = std::make_shared<Shutdown>();
    const ShutdownEntry entry(shutdown);
    EXPECT_TRUE(isListed(*shutdown));
}

TEST(ShutdownEntryTest, refusesAChildOnceTheEndWasRequested)
{
    const auto shutdown = std::make_shared<Shutdown>();
    ShutdownEntry early(shutdown);
    shutdown->request();
    EXPECT_FALSE(early.enter(nobody));
    EXPECT_FALSE(ShutdownEntry(shutdown).isAnnounced());
}

TEST(ShutdownEntryTest, doesNothingWithoutAList)
{
    ShutdownEntry entry(nullptr);
    EXPECT_TRUE(entry.isAnnounced());
    EXPECT_TRUE(entry.enter(nobody));
    entry.leave();
}

} // namespace Loadwick
